#pragma once

#include "UObject/PropertyOf.h"
#include "UObject/ScriptMacros.h"
#include "UObject/UnrealType.h"

// What the header tool's *.gen.cpp files are made of: plain descriptions of types, and the calls that turn them into reflection.

namespace UECodeGen
{
/** A C array by pointer and count. */
template <typename T>
struct TList
{
	constexpr TList() = default;
	template <int32 N>
	constexpr TList(const T (&Array)[N])
		: Data(Array)
		, Num(N)
	{
	}

	const T* begin() const { return Data; }
	const T* end() const { return Data + Num; }

	const T* Data = nullptr;
	int32 Num = 0;
};

/** UTF-8. */
struct FMetaDataPair
{
	const char* Key;
	const char* Value;
};

struct FPropertyParams
{
	const char* Name;
	FProperty* (*New)(FFieldVariant Owner, const FName& Name);
	int32 Offset;
	EPropertyFlags Flags;
	TList<FMetaDataPair> MetaData;
	/** For a C array. */
	int32 ArrayDim = 1;
	/** For a bitfield: the size of the integer that it is cut from, and a function that sets it in an object of the owner. */
	int32 BitFieldSize = 0;
	void (*SetBit)(void* Container) = nullptr;
};

struct FFunctionParams
{
	const char* Name;
	FNativeFuncPtr Exec;
	EFunctionFlags Flags;
	int32 ParmsSize;
	int32 ParmsAlignment;
	TList<FPropertyParams> Properties;
	TList<FMetaDataPair> MetaData;
};

struct FClassParams
{
	const char* Package;
	/** Without the prefix. */
	const char* Name;
	/** Null for the root. */
	UClass* (*Super)();
	EClassFlags Flags;
	int32 Size;
	int32 Alignment;
	UClass::ClassConstructorType Constructor;
	UClass::ClassAddReferencedObjectsType AddReferencedObjects;
	TList<FFunctionParams> Functions;
	TList<FPropertyParams> Properties;
	TList<FMetaDataPair> MetaData;
	const char* ConfigName = nullptr;
	EClassCastFlags CastFlags = CASTCLASS_None;
};

struct FStructParams
{
	const char* Package;
	const char* Name;
	UScriptStruct* (*Super)();
	EStructFlags Flags;
	const UScriptStruct::ICppStructOps* Ops;
	TList<FPropertyParams> Properties;
	TList<FMetaDataPair> MetaData;
};

struct FEnumEntry
{
	/** Short. */
	const char* Name;
	int64 Value;
	TList<FMetaDataPair> MetaData;
};

struct FEnumParams
{
	const char* Package;
	const char* Name;
	const char* CppType;
	UEnum::ECppForm CppForm;
	TList<FEnumEntry> Entries;
	TList<FMetaDataPair> MetaData;
};

/** Makes the type, remembers it in the first argument and returns it. */
COREUOBJECT_API UClass* ConstructClass(UClass*& OutClass, const FClassParams& Params);
COREUOBJECT_API UScriptStruct* ConstructStruct(UScriptStruct*& OutStruct, const FStructParams& Params);
COREUOBJECT_API UEnum* ConstructEnum(UEnum*& OutEnum, const FEnumParams& Params);

/** Lies in a static of a generated source: has the type made when newly loaded objects are processed. */
struct COREUOBJECT_API FAutoRegister
{
	explicit FAutoRegister(UClass* (*StaticClass)());
	explicit FAutoRegister(UScriptStruct* (*StaticStruct)());
	explicit FAutoRegister(UEnum* (*StaticEnum)());
};

/** What C++ can do with a structure, for ICppStructOps. */
template <typename T>
struct TCppStructOps
{
	template <typename U>
	static auto IdenticalOf(int)
		-> decltype(std::declval<const U&>() == std::declval<const U&>(), (bool (*)(const void*, const void*)) nullptr)
	{
		return [](const void* A, const void* B)
		{
			return bool(*static_cast<const U*>(A) == *static_cast<const U*>(B));
		};
	}
	template <typename U>
	static auto IdenticalOf(...) -> bool (*)(const void*, const void*)
	{
		return nullptr;
	}

	template <typename U>
	static auto HashOf(int) -> decltype(GetTypeHash(std::declval<const U&>()), (uint32(*)(const void*)) nullptr)
	{
		return [](const void* Src) -> uint32
		{
			return GetTypeHash(*static_cast<const U*>(Src));
		};
	}
	template <typename U>
	static auto HashOf(...) -> uint32 (*)(const void*)
	{
		return nullptr;
	}

	static const UScriptStruct::ICppStructOps* Get()
	{
		static const UScriptStruct::ICppStructOps Ops = {
			sizeof(T),
			alignof(T),
			[](void* Dest) { ::new (FMemory::Memzero(Dest, sizeof(T))) T(MakeZeroedValue<T>()); },
			[](void* Dest) { static_cast<T*>(Dest)->~T(); },
			[](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); },
			IdenticalOf<T>(0),
			HashOf<T>(0),
			TStructText<T>::Export,
			TStructText<T>::Import,
		};
		return &Ops;
	}
};
}
