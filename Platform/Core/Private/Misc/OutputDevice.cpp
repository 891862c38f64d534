#include "Misc/OutputDevice.h"

#include "Containers/UnrealString.h"
#include "Misc/FormatVarArgs.h"

void FOutputDevice::Log(const TCHAR* S)
{
	Serialize(S, ELogVerbosity::Log, NAME_None);
}

void FOutputDevice::Log(ELogVerbosity::Type Verbosity, const TCHAR* S)
{
	Serialize(S, Verbosity, NAME_None);
}

void FOutputDevice::Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* S)
{
	Serialize(S, Verbosity, Category);
}

void FOutputDevice::Logf(const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	Serialize(*FormatVarArgs(Fmt, Args), ELogVerbosity::Log, NAME_None);
	va_end(Args);
}

void FOutputDevice::Logf(ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	Serialize(*FormatVarArgs(Fmt, Args), Verbosity, NAME_None);
	va_end(Args);
}

void FOutputDevice::CategorizedLogf(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	Serialize(*FormatVarArgs(Fmt, Args), Verbosity, Category);
	va_end(Args);
}
