#include "Velmora/DescriptionText.h"

#include "LogCapture.h"
#include "TempProject.h"
#include "Velmora/ToolDescription.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

FString TextOf(const FString& Path)
{
	FDescriptionText Text;
	FString Error;
	EXPECT_TRUE(ReadDescriptionText(Path, Text, Error));
	return Text.Text;
}

/** Why a description is given up, which one error line must say as well. */
FString ExcessOf(const FString& Path)
{
	const FLogCapture Log(TEXT("PythonKX"));
	FDescriptionText Text;
	FString Error;
	EXPECT_FALSE(ReadDescriptionText(Path, Text, Error));
	EXPECT_EQ(Log.Errors(), FLines({Error}));
	EXPECT_EQ(Log.Warnings(), FLines());
	return Error;
}
}

TEST(DescriptionText, FileThatIncludesItselfUnderAnotherCaseIsRefusedToo)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{}\n\"ExternalJson\": \"TOOL.json\"\n");
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(TextOf(Path), FString(TEXT("{}\n")));

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("JsonFile TOOL.json has already import in parents, recursively import")}));
}

TEST(DescriptionText, FileThatIncludesItselfBehindANullCharacterIsRefusedToo)
{
	const FTempProject Folder;
	const TCHAR Text[] = TEXT("{}\n\"ExternalJson\": \"Tool.json\0/Part/c\"\n");
	const FString Path = Folder.Write(TEXT("Tool.json"), FString(UE_ARRAY_COUNT(Text) - 1, Text));
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(TextOf(Path), FString(TEXT("{}\n")));

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("JsonFile Tool.json has already import in parents, recursively import")}));
}

TEST(DescriptionText, FileIncludedTwiceSideBySideStandsTwice)
{
	const FTempProject Folder;
	Folder.Write(TEXT("B.json"), "b\n");
	const FString Path = Folder.Write(TEXT("A.json"), "\"ExternalJson\": \"B.json\"\na\n\"ExternalJson\": \"B.json\"\n");
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(TextOf(Path), FString(TEXT("b\na\nb\n")));

	EXPECT_EQ(Log.Warnings(), FLines());
}

TEST(DescriptionText, CycleOfTwoFilesStopsAtTheSecondTurn)
{
	const FTempProject Folder;
	Folder.Write(TEXT("B.json"), "b\n\"ExternalJson\": \"A.json\"\n");
	const FString Path = Folder.Write(TEXT("A.json"), "a\n\"ExternalJson\": \"B.json\"\n");
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(TextOf(Path), FString(TEXT("a\nb\n")));

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("JsonFile A.json has already import in parents, recursively import")}));
}

TEST(DescriptionText, AbsoluteInclusionIsUsedAsItStands)
{
	const FTempProject Folder;
	const FTempProject Elsewhere;
	const FString Included = Elsewhere.Write(TEXT("Part.json"), "part\n");
	const FString Line = TEXT("\"ExternalJson\": \"") + Included + TEXT("\"");
	const FString Path = Folder.Write(TEXT("Tool.json"), Line);

	EXPECT_EQ(TextOf(Path), FString(TEXT("part\n")));
}

TEST(DescriptionText, NestedInclusionResolvesAgainstTheFileItStandsIn)
{
	const FTempProject Folder;
	Folder.Write(TEXT("Shared/Leaf.json"), "leaf\n");
	Folder.Write(TEXT("Tools/Parts/Header.json"), "\"ExternalJson\": \"../../Shared/Leaf.json\"\n");
	const FString Path = Folder.Write(TEXT("Tools/Tool.json"), "\"ExternalJson\": \"Parts/Header.json\",\n");
	FDescriptionText Text;
	FString Error;

	ASSERT_TRUE(ReadDescriptionText(Path, Text, Error));

	EXPECT_EQ(Text.Text, FString(TEXT("leaf\n")));
	EXPECT_EQ(Text.DescribePlace(1), Folder.Path(TEXT("Shared/Leaf.json")) + TEXT(":1"));
}

TEST(DescriptionText, CommentedOutInclusionIsIncludedAllTheSame)
{
	const FTempProject Folder;
	Folder.Write(TEXT("x.json"), "x\n");
	const FString Path = Folder.Write(TEXT("Tool.json"), "  // \"ExternalJson\": \"x.json\"\n");

	EXPECT_EQ(TextOf(Path), FString(TEXT("x\n")));
}

TEST(DescriptionText, RestOfAnInclusionLineIsLost)
{
	const FTempProject Folder;
	Folder.Write(TEXT("x.json"), "x");
	const FString Path = Folder.Write(TEXT("Tool.json"), "\"A\": 1, \"ExternalJson\": \"x.json\", \"B\": 2 // why\nnext");

	EXPECT_EQ(TextOf(Path), FString(TEXT("x\nnext\n")));
}

TEST(DescriptionText, DoubleSlashInsideAStringCutsTheLineAndBreaksTheParse)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{\n\"A\": \"b//c\",\n\"B\": 1 }");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_EQ(TextOf(Path), FString(TEXT("{\n\"A\": \"b\n\"B\": 1 }\n")));
	EXPECT_FALSE(LoadJsonFile(Path, Error).IsValid());

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("Deserialize File ") + Path + TEXT(" failed, check: '\\' ")}));
}

TEST(DescriptionText, CommentLineLeavesNotEvenALineEnd)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{\n\t// nothing\n} // end\n");

	EXPECT_EQ(TextOf(Path), FString(TEXT("{\n} \n")));
}

TEST(DescriptionText, PlacesFollowTheSplicedText)
{
	const FTempProject Folder;
	const FString Part = Folder.Write(TEXT("Part.json"), "x\n// y\nz\n");
	const FString Path = Folder.Write(TEXT("Tool.json"), "// top\na\n\"ExternalJson\": \"Part.json\"\nb\n");
	FDescriptionText Text;
	FString Error;

	ASSERT_TRUE(ReadDescriptionText(Path, Text, Error));

	EXPECT_EQ(Text.Text, FString(TEXT("a\nx\nz\nb\n")));
	EXPECT_EQ(Text.DescribePlace(1), Path + TEXT(":2"));
	EXPECT_EQ(Text.DescribePlace(2), Part + TEXT(":1"));
	EXPECT_EQ(Text.DescribePlace(3), Part + TEXT(":3"));
	EXPECT_EQ(Text.DescribePlace(4), Path + TEXT(":4"));
	EXPECT_EQ(Text.DescribePlace(99), Path + TEXT(":4"));
}

TEST(DescriptionText, ExternalTextIsGivenWithoutItsOwnCycle)
{
	const FTempProject Folder;
	const FString Tool = Folder.Path(TEXT("Tool.json"));
	Folder.Write(TEXT("Part.json"), "part // comment\n");

	EXPECT_EQ(LoadExternalJson(TEXT("Part.json"), {Tool}), FString(TEXT("part \n")));
	EXPECT_EQ(LoadExternalJson(TEXT("Part.json"), {Tool, Folder.Path(TEXT("Part.json"))}), FString());
}

TEST(DescriptionText, FileThatIncludesItselfUnderAnotherSpellingOfItsPathIsRefusedToo)
{
	const FTempProject Folder;
	Folder.Write(TEXT("x/Part.json"), "");
	for (const TCHAR* const Spelling : {TEXT("x//../G.json"), TEXT(".//G.json"), TEXT("./x/..//G.json"), TEXT("x\\..\\G.json")})
	{
		const FString Line = FString::Printf(TEXT("\"ExternalJson\": \"%s\"\n"), Spelling);
		const FString Path = Folder.Write(TEXT("G.json"), TEXT("{}\n") + Line + Line);
		const FLogCapture Log(TEXT("PythonKX"));

		EXPECT_EQ(TextOf(Path), FString(TEXT("{}\n")));

		const FString Warning = FString::Printf(TEXT("JsonFile %s has already import in parents, recursively import"), Spelling);
		EXPECT_EQ(Log.Warnings(), FLines({Warning, Warning}));
	}
}

TEST(DescriptionText, FileThatIncludesItselfByAnUncleanAbsolutePathIsRefusedToo)
{
	const FTempProject Folder;
	const FString Unclean = Folder.Path(TEXT("x//..//G.json"));
	const FString Path = Folder.Write(TEXT("G.json"), TEXT("{}\n\"ExternalJson\": \"") + Unclean + TEXT("\"\n"));
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(TextOf(Path), FString(TEXT("{}\n")));

	EXPECT_EQ(Log.Warnings(),
		FLines({FString::Printf(TEXT("JsonFile %s has already import in parents, recursively import"), *Unclean)}));
}

TEST(DescriptionText, FileThatIncludesItselfByWayOfAboveTheRootIsRefusedToo)
{
	const FTempProject Folder;
	FString Up;
	for (int32 Level = 0; Level < 40; ++Level)
	{
		Up += TEXT("../");
	}
	const FString Full = Folder.Path(TEXT("G.json"));
	for (const FString& Spelling : {Up + Full.RightChop(1), TEXT("/..") + Full, TEXT("/../..//.") + Full})
	{
		const FString Path = Folder.Write(TEXT("G.json"), TEXT("{}\n\"ExternalJson\": \"") + Spelling + TEXT("\"\n"));
		const FLogCapture Log(TEXT("PythonKX"));

		EXPECT_EQ(TextOf(Path), FString(TEXT("{}\n")));

		EXPECT_EQ(Log.Warnings(),
			FLines({FString::Printf(TEXT("JsonFile %s has already import in parents, recursively import"), *Spelling)}));
	}
}

TEST(DescriptionText, CycleThatDoesNotLeadBackToTheFirstFileStops)
{
	const FTempProject Folder;
	Folder.Write(TEXT("B.json"), "b\n\"ExternalJson\": \"C.json\"\n");
	Folder.Write(TEXT("C.json"), "c\n\"ExternalJson\": \"B.json\"\n");
	const FString Path = Folder.Write(TEXT("A.json"), "a\n\"ExternalJson\": \"B.json\"\n");
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(TextOf(Path), FString(TEXT("a\nb\nc\n")));

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("JsonFile B.json has already import in parents, recursively import")}));
}

TEST(DescriptionText, ChainOfFilesThatIncludeTheNextTwiceIsGivenUp)
{
	const FTempProject Folder;
	for (int32 Index = 0; Index < 26; ++Index)
	{
		const FString Line = FString::Printf(TEXT("\"ExternalJson\": \"%d.json\"\n"), Index + 1);
		Folder.Write(*FString::Printf(TEXT("%d.json"), Index), Line + Line);
	}
	Folder.Write(TEXT("26.json"), "1\n");

	EXPECT_EQ(ExcessOf(Folder.Path(TEXT("0.json"))).RightChop(Folder.Path(TEXT("")).Len()),
		FString(TEXT("22.json: a description ends at 100000 included files, \"23.json\" is one more")));
}

TEST(DescriptionText, InclusionsEndTwoHundredFilesDeep)
{
	const FTempProject Folder;
	for (int32 Index = 0; Index < 201; ++Index)
	{
		Folder.Write(
			*FString::Printf(TEXT("%d.json"), Index), FString::Printf(TEXT("\"ExternalJson\": \"%d.json\"\n"), Index + 1));
	}
	Folder.Write(TEXT("201.json"), "end\n");

	EXPECT_EQ(TextOf(Folder.Path(TEXT("1.json"))), FString(TEXT("end\n")));
	EXPECT_EQ(ExcessOf(Folder.Path(TEXT("0.json"))),
		Folder.Path(TEXT("200.json")) + TEXT(": inclusions end 200 files deep, \"201.json\" is one deeper"));
}

TEST(DescriptionText, FilesOfAGibibyteAreTheLargestDescription)
{
	constexpr int64 Limit = 1LL << 30;
	const FTempProject Folder;
	const FString Large = Folder.Write(TEXT("Large.json"), "");
	const FString Path = Folder.Write(TEXT("Tool.json"), "\"ExternalJson\": \"Large.json\"\n");
	const int64 Rest = Limit - std::filesystem::file_size(TCHAR_TO_UTF8(*Path));
	std::filesystem::resize_file(TCHAR_TO_UTF8(*Large), Rest + 1);

	EXPECT_EQ(ExcessOf(Path), Large + TEXT(": a description ends at 1073741824 bytes, with this file it has 1073741825"));
	EXPECT_EQ(LoadExternalJson(TEXT("Tool.json"), {Large}), FString());
}
