#include "Logging/LogMacros.h"

#include "Misc/FatalError.h"
#include "Misc/FormatVarArgs.h"
#include "Misc/OutputDeviceRedirector.h"

void FMsg::LogfImpl(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	const FString Message = FormatVarArgs(Fmt, Args);
	va_end(Args);

	if (Verbosity == ELogVerbosity::Fatal)
	{
		EndProcessByError(FString::Printf(
			TEXT("Fatal error: [File:%s] [Line: %i] \n%s: %s"), *FString(File), Line, *Category.ToString(), *Message));
	}
	GLog->Serialize(*Message, Verbosity, Category);
}
