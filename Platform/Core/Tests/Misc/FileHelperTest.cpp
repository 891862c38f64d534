#include "Misc/FileHelper.h"

#include <sys/stat.h>
#include <unistd.h>

#include <initializer_list>

#include <gtest/gtest.h>

#include "HAL/FileManager.h"
#include "TempProject.h"

namespace
{
using EEncoding = FFileHelper::EEncodingOptions;

class FileHelper : public testing::Test
{
protected:
	void SetBytes(std::initializer_list<uint8> Bytes) const
	{
		ASSERT_TRUE(FFileHelper::SaveArrayToFile(TArray<uint8>(Bytes), *File));
	}

	void SetText(const TCHAR* Text) const { Project.Write(TEXT("File"), Text); }

	FString Load() const { return Project.Read(TEXT("File")); }

	TArray<FString> LoadLines() const
	{
		TArray<FString> Lines({TEXT("former")});
		EXPECT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *File));
		return Lines;
	}

	TArray<uint8> Save(const TCHAR* Text, EEncoding Encoding) const
	{
		TArray<uint8> Bytes;
		EXPECT_TRUE(FFileHelper::SaveStringToFile(Text, *File, Encoding));
		EXPECT_TRUE(FFileHelper::LoadFileToArray(Bytes, *File));
		return Bytes;
	}

	const FTempProject Project;
	const FString File = Project.Path(TEXT("File"));
};
}

TEST_F(FileHelper, ReadsUtf16AndUtf8ByTheirMarks)
{
	SetBytes({0xFF, 0xFE, 0xFC, 0x00, 'x', 0x00});
	EXPECT_EQ(Load(), FString(TEXT("\u00FCx")));
	SetBytes({0xFE, 0xFF, 0x00, 0xFC, 0x00, 'x'});
	EXPECT_EQ(Load(), FString(TEXT("\u00FCx")));
	SetBytes({0xEF, 0xBB, 0xBF, 0xC3, 0xBC, 'x'});
	EXPECT_EQ(Load(), FString(TEXT("\u00FCx")));
}

TEST_F(FileHelper, ReadsUtf8WithoutMarkAndTurnsBadBytesIntoQuestionMarks)
{
	SetBytes({0xC3, 0xBC, 0xFC, 'x', 0xF0, 0x9F, 0x8E, 0xA8});
	EXPECT_EQ(Load(), FString(TEXT("\u00FC?x\U0001F3A8")));
}

TEST_F(FileHelper, LinesEndAtLineFeedReturnOrBoth)
{
	SetText(TEXT("a\nb\r\nc\rd"));
	EXPECT_EQ(LoadLines(), TArray<FString>({TEXT("a"), TEXT("b"), TEXT("c"), TEXT("d")}));
}

TEST_F(FileHelper, BreakAtTheEndAddsNoLineButEmptyLinesCount)
{
	SetText(TEXT("a\n\nb\n"));
	EXPECT_EQ(LoadLines(), TArray<FString>({TEXT("a"), TEXT(""), TEXT("b")}));
	SetText(TEXT("a\n\n"));
	EXPECT_EQ(LoadLines(), TArray<FString>({TEXT("a"), TEXT("")}));
	SetText(TEXT("\n"));
	EXPECT_EQ(LoadLines(), TArray<FString>({TEXT("")}));
}

TEST_F(FileHelper, EmptyFileGivesNoLine)
{
	SetText(TEXT(""));
	EXPECT_EQ(LoadLines(), TArray<FString>());
}

TEST_F(FileHelper, MissingFileLeavesTheOutputAlone)
{
	FString Text(TEXT("kept"));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *File));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *Project.GetDir()));
	EXPECT_EQ(Text, FString(TEXT("kept")));
}

TEST_F(FileHelper, DevicesAndPipesAreRefusedAtOnce)
{
	FString Text(TEXT("kept"));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, TEXT("/dev/zero")));
	ASSERT_EQ(mkfifo(TCHAR_TO_UTF8(*File), 0600), 0);
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *File));
	EXPECT_EQ(Text, FString(TEXT("kept")));
}

TEST_F(FileHelper, AutomaticEncodingIsBytesForAsciiAndUtf16Otherwise)
{
	EXPECT_EQ(Save(TEXT("ab"), EEncoding::AutoDetect), TArray<uint8>({'a', 'b'}));
	EXPECT_EQ(Save(TEXT("\u00FC"), EEncoding::AutoDetect), TArray<uint8>({0xFF, 0xFE, 0xFC, 0x00}));
}

TEST_F(FileHelper, ForcedEncodings)
{
	EXPECT_EQ(Save(TEXT("\u00FC"), EEncoding::ForceUTF8WithoutBOM), TArray<uint8>({0xC3, 0xBC}));
	EXPECT_EQ(Save(TEXT("a"), EEncoding::ForceUTF8), TArray<uint8>({0xEF, 0xBB, 0xBF, 'a'}));
	EXPECT_EQ(Save(TEXT("a"), EEncoding::ForceUnicode), TArray<uint8>({0xFF, 0xFE, 'a', 0x00}));
}

TEST_F(FileHelper, SaveMakesMissingFolders)
{
	EXPECT_TRUE(FFileHelper::SaveStringToFile(TEXT("a"), *Project.Path(TEXT("A/B/C.txt"))));
	EXPECT_EQ(Project.Read(TEXT("A/B/C.txt")), FString(TEXT("a")));
}

TEST_F(FileHelper, LinesAreSavedWithABreakBehindEach)
{
	EXPECT_TRUE(FFileHelper::SaveStringArrayToFile({TEXT("a"), TEXT("b")}, *File));
	EXPECT_EQ(Load(), FString(TEXT("a\nb\n")));
}

TEST_F(FileHelper, WritePutsANewFileInPlaceOfTheOldOne)
{
	SetText(TEXT("old"));
	const FString Other = Project.Path(TEXT("Other"));
	ASSERT_EQ(link(TCHAR_TO_UTF8(*File), TCHAR_TO_UTF8(*Other)), 0);
	SetText(TEXT("new"));

	EXPECT_EQ(Load(), FString(TEXT("new")));
	EXPECT_EQ(Project.Read(TEXT("Other")), FString(TEXT("old")));
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *Project.Path(TEXT("*")), true, false);
	Names.Sort();
	EXPECT_EQ(Names, TArray<FString>({TEXT("File"), TEXT("Other"), TEXT("TestProject.uproject")}));
}

TEST_F(FileHelper, WriteKeepsTheModeOfTheFile)
{
	SetText(TEXT("old"));
	ASSERT_EQ(chmod(TCHAR_TO_UTF8(*File), 0751), 0);
	SetText(TEXT("new"));
	struct stat Status;
	ASSERT_EQ(stat(TCHAR_TO_UTF8(*File), &Status), 0);
	EXPECT_EQ(Status.st_mode & 0777, 0751u);
}

TEST_F(FileHelper, WriteThroughALinkKeepsTheLink)
{
	Project.Write(TEXT("Target"), TEXT("old"));
	ASSERT_EQ(symlink("Target", TCHAR_TO_UTF8(*File)), 0);
	SetText(TEXT("new"));
	EXPECT_EQ(Project.Read(TEXT("Target")), FString(TEXT("new")));
	struct stat Status;
	ASSERT_EQ(lstat(TCHAR_TO_UTF8(*File), &Status), 0);
	EXPECT_TRUE(S_ISLNK(Status.st_mode));
}

TEST_F(FileHelper, WriteProtectedFileStaysAsItIs)
{
	SetText(TEXT("old"));
	ASSERT_EQ(chmod(TCHAR_TO_UTF8(*File), 0444), 0);
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("new"), *File));
	EXPECT_EQ(Load(), FString(TEXT("old")));
}

TEST_F(FileHelper, WriteOverAFolderFails)
{
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("a"), *Project.GetDir()));
	EXPECT_TRUE(IFileManager::Get().DirectoryExists(*Project.GetDir()));
}
