#include "HAL/PlatformMisc.h"

#include <cstdlib>
#include <unistd.h>

#include "CoreGlobals.h"
#include "HAL/NativePath.h"

namespace
{
uint8 GRequestedReturnCode = 0;
}

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	const char* const Value = getenv(ToUtf8(VariableName).c_str());
	return Value ? FromUtf8(Value) : FString();
}

void FPlatformMisc::SetEnvironmentVar(const TCHAR* VariableName, const TCHAR* Value)
{
	setenv(ToUtf8(VariableName).c_str(), ToUtf8(Value).c_str(), 1);
}

void FPlatformMisc::RequestExit(bool Force)
{
	RequestExitWithStatus(Force, GRequestedReturnCode);
}

void FPlatformMisc::RequestExitWithStatus(bool Force, uint8 ReturnCode)
{
	GRequestedReturnCode = ReturnCode;
	if (Force)
	{
		GLog->Flush();
		_exit(ReturnCode);
	}
	RequestEngineExit(TEXT("FPlatformMisc::RequestExit"));
}

uint8 FPlatformMisc::GetRequestedReturnCode()
{
	return GRequestedReturnCode;
}
