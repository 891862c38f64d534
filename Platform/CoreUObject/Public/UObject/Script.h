#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

class UObject;
struct FFrame;

/** How a function was declared and how it may be called. The values are part of the script interface. */
enum EFunctionFlags : uint32
{
	FUNC_None = 0x00000000,
	FUNC_Final = 0x00000001,
	FUNC_RequiredAPI = 0x00000002,
	FUNC_Exec = 0x00000200,
	FUNC_Native = 0x00000400,
	FUNC_Event = 0x00000800,
	FUNC_Static = 0x00002000,
	FUNC_MulticastDelegate = 0x00010000,
	FUNC_Public = 0x00020000,
	FUNC_Private = 0x00040000,
	FUNC_Protected = 0x00080000,
	FUNC_Delegate = 0x00100000,
	FUNC_HasOutParms = 0x00400000,
	FUNC_HasDefaults = 0x00800000,
	FUNC_BlueprintCallable = 0x04000000,
	FUNC_BlueprintEvent = 0x08000000,
	FUNC_BlueprintPure = 0x10000000,
	FUNC_EditorOnly = 0x20000000,
	FUNC_Const = 0x40000000,
	FUNC_AllFlags = 0xFFFFFFFF,
};
ENUM_CLASS_FLAGS(EFunctionFlags)

/** The native body of a reflected function. Parameters and return value lie in the block that Stack.Locals points to. */
using FNativeFuncPtr = void (*)(UObject* Context, FFrame& Stack);
