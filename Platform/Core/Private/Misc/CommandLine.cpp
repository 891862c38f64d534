#include "Misc/CommandLine.h"

namespace
{
FString& CommandLine()
{
	static FString Text;
	return Text;
}

FString QuoteIfNeeded(const FString& Argument)
{
	int32 Blank = INDEX_NONE;
	const bool bNeeded = (Argument.FindChar(TEXT(' '), Blank) || Argument.IsEmpty()) && !Argument.Contains(TEXT("\""));
	if (!bNeeded)
	{
		return Argument;
	}

	int32 Equals = INDEX_NONE;
	const bool bSwitchWithValue = Argument.StartsWith(TEXT("-")) && Argument.FindChar(TEXT('='), Equals) && Equals < Blank;
	const int32 ValueStart = bSwitchWithValue ? Equals + 1 : 0;
	return Argument.Left(ValueStart) + TEXT("\"") + Argument.Mid(ValueStart) + TEXT("\"");
}
}

const TCHAR* FCommandLine::Get()
{
	return *CommandLine();
}

void FCommandLine::Set(const TCHAR* NewCommandLine)
{
	CommandLine() = NewCommandLine;
}

void FCommandLine::Append(const TCHAR* AppendString)
{
	CommandLine() += AppendString;
}

FString FCommandLine::BuildFromArgV(int32 ArgC, const ANSICHAR* const* ArgV)
{
	TArray<FString> Arguments;
	for (int32 Index = 1; Index < ArgC; ++Index)
	{
		Arguments.Add(QuoteIfNeeded(FString(ArgV[Index])));
	}
	return FString::Join(Arguments, TEXT(" "));
}
