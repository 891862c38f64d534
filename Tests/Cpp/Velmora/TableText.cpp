#include "Velmora/TableText.h"

#include "LogCapture.h"
#include "Misc/FileHelper.h"

#include <gtest/gtest.h>

namespace
{
bool IsSameLine(const FString& A, const FString& B)
{
	return A.Equals(B, ESearchCase::CaseSensitive);
}

/** For each pair of ends of two texts: how many lines they have in common, in order. */
TArray<TArray<int32>> CountCommonLines(const TArray<FString>& A, const TArray<FString>& B)
{
	TArray<int32> Empty;
	Empty.Init(0, B.Num() + 1);
	TArray<TArray<int32>> Common;
	Common.Init(Empty, A.Num() + 1);
	for (int32 Row = A.Num() - 1; Row >= 0; --Row)
	{
		for (int32 Column = B.Num() - 1; Column >= 0; --Column)
		{
			Common[Row][Column] = IsSameLine(A[Row], B[Column]) ? Common[Row + 1][Column + 1] + 1
																: FMath::Max(Common[Row + 1][Column], Common[Row][Column + 1]);
		}
	}
	return Common;
}
}

TArray<FString> DiffLines(const TArray<FString>& Expected, const TArray<FString>& Found)
{
	const TArray<TArray<int32>> Common = CountCommonLines(Expected, Found);
	TArray<FString> Differences;
	int32 Row = 0;
	int32 Column = 0;
	while (Row < Expected.Num() || Column < Found.Num())
	{
		if (Row < Expected.Num() && Column < Found.Num() && IsSameLine(Expected[Row], Found[Column]))
		{
			++Row;
			++Column;
		}
		else if (Column == Found.Num() || (Row < Expected.Num() && Common[Row + 1][Column] >= Common[Row][Column + 1]))
		{
			Differences.Add(FString::Printf(TEXT("%d: - %s"), Row + 1, *Expected[Row]));
			++Row;
		}
		else
		{
			Differences.Add(FString::Printf(TEXT("%d: + %s"), Row + 1, *Found[Column]));
			++Column;
		}
	}
	return Differences;
}

void ExpectTable(const char* FileName, const TArray<FString>& Lines)
{
	const std::string Path = std::string(KESTRIX_EXPECTED_TABLES) + "/" + FileName;
	TArray<FString> Expected;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Expected, UTF8_TO_TCHAR(Path.c_str()))) << Path;

	const TArray<FString> Differences = DiffLines(Expected, Lines);
	EXPECT_EQ(Differences.Num(), 0) << Path << TCHAR_TO_UTF8(*(TEXT("\n") + FString::Join(Differences, TEXT("\n"))));
}
