#include "Velmora/TableText.h"

#include "LogCapture.h"
#include "Misc/FileHelper.h"

#include <gtest/gtest.h>

void ExpectTable(const char* FileName, const TArray<FString>& Lines)
{
	const std::string Path = std::string(KESTRIX_EXPECTED_TABLES) + "/" + FileName;
	TArray<FString> Expected;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Expected, UTF8_TO_TCHAR(Path.c_str()))) << Path;

	EXPECT_EQ(Lines.Num(), Expected.Num()) << Path;
	for (int32 Index = 0; Index < FMath::Min(Lines.Num(), Expected.Num()); ++Index)
	{
		EXPECT_TRUE(Lines[Index].Equals(Expected[Index], ESearchCase::CaseSensitive))
			<< Path << ":" << Index + 1 << "\n  is       " << TCHAR_TO_UTF8(*Lines[Index]) << "\n  expected "
			<< TCHAR_TO_UTF8(*Expected[Index]);
	}
}
