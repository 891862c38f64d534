#include "UObject/NoExportTypes.h"

void UECodeGen::TStructText<FGuid>::Export(FString& ValueStr, const void* Src)
{
	ValueStr += static_cast<const FGuid*>(Src)->ToString();
}

bool UECodeGen::TStructText<FGuid>::Import(const TCHAR*& Buffer, void* Dest)
{
	constexpr int32 NumDigits = 32;
	if (FCString::Strlen(Buffer) < NumDigits || !FGuid::Parse(FString(NumDigits, Buffer), *static_cast<FGuid*>(Dest)))
	{
		return false;
	}
	Buffer += NumDigits;
	return true;
}
