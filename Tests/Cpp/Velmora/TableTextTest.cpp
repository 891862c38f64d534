#include "Velmora/TableText.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FLines Table = {TEXT("a"), TEXT("b"), TEXT("c")};
}

TEST(TableText, InsertedRowIsOneLineOfDifference)
{
	EXPECT_EQ(DiffLines(Table, {TEXT("a"), TEXT("new"), TEXT("b"), TEXT("c")}), FLines({TEXT("2: + new")}));
}

TEST(TableText, MissingRowIsOneLineOfDifference)
{
	EXPECT_EQ(DiffLines(Table, {TEXT("a"), TEXT("c")}), FLines({TEXT("2: - b")}));
}

TEST(TableText, ChangedRowIsShownBothWaysLetterForLetter)
{
	EXPECT_EQ(DiffLines(Table, {TEXT("a"), TEXT("B"), TEXT("c")}), FLines({TEXT("2: - b"), TEXT("3: + B")}));
}

TEST(TableText, EqualTablesDoNotDiffer)
{
	EXPECT_EQ(DiffLines(Table, Table), FLines());
	EXPECT_EQ(DiffLines({}, {}), FLines());
}
