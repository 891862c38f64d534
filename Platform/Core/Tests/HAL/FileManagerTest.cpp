#include "HAL/FileManager.h"

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFileManager.h"
#include "LogCapture.h"
#include "TempProject.h"

namespace
{
IFileManager& Files()
{
	return IFileManager::Get();
}

IPlatformFile& PlatformFiles()
{
	return FPlatformFileManager::Get().GetPlatformFile();
}

class FileManager : public testing::Test
{
protected:
	/** Everything below a folder of the project, sorted, without the folder's own name. */
	TArray<FString> List(
		const TCHAR* Folder, const TCHAR* Pattern = TEXT("*"), bool bFiles = true, bool bDirectories = false) const
	{
		const FString Start = Project.Path(Folder);
		TArray<FString> Names;
		Files().FindFilesRecursive(Names, *Start, Pattern, bFiles, bDirectories);
		for (FString& Name : Names)
		{
			EXPECT_TRUE(Name.RemoveFromStart(Start + TEXT("/"))) << testing::PrintToString(Name);
		}
		Names.Sort();
		return Names;
	}

	void Link(const TCHAR* Target, const TCHAR* Name) const
	{
		ASSERT_EQ(symlink(TCHAR_TO_UTF8(Target), TCHAR_TO_UTF8(*Project.Path(Name))), 0);
	}

	const FTempProject Project;
};
}

TEST_F(FileManager, TimeStampIsUtcInWholeSecondsAndZeroForAMissingFile)
{
	const FString File = Project.Write(TEXT("A.json"), TEXT("{}"));
	const FDateTime Stamp = Files().GetTimeStamp(*File);
	EXPECT_EQ(Stamp.GetTicks() % ETimespan::TicksPerSecond, 0);
	EXPECT_LT(FMath::Abs((FDateTime::UtcNow() - Stamp).GetTotalSeconds()), 60.0);
	EXPECT_EQ(Files().GetTimeStamp(*(File + TEXT("x"))).GetTicks(), 0);
}

TEST_F(FileManager, SizeOfAMissingFileIsMinusOne)
{
	EXPECT_EQ(Files().FileSize(*Project.Write(TEXT("A"), TEXT("four"))), 4);
	EXPECT_EQ(Files().FileSize(*Project.Path(TEXT("B"))), -1);
	EXPECT_EQ(Files().FileSize(*Project.GetDir()), -1);
}

TEST_F(FileManager, CopyAndMoveTakeTheDestinationFirstAndMakeItsFolders)
{
	const FString Source = Project.Write(TEXT("A.txt"), TEXT("a"));
	EXPECT_EQ(Files().Copy(*Project.Path(TEXT("New/B.txt")), *Source), COPY_OK);
	EXPECT_EQ(Project.Read(TEXT("New/B.txt")), FString(TEXT("a")));
	EXPECT_TRUE(Files().FileExists(*Source));

	EXPECT_TRUE(Files().Move(*Project.Path(TEXT("Other/C.txt")), *Source));
	EXPECT_EQ(Project.Read(TEXT("Other/C.txt")), FString(TEXT("a")));
	EXPECT_FALSE(Files().FileExists(*Source));
}

TEST_F(FileManager, CopyAndMoveReplaceOnlyWhenTheyMay)
{
	const FString Source = Project.Write(TEXT("A"), TEXT("a"));
	const FString Present = Project.Write(TEXT("B"), TEXT("b"));
	EXPECT_EQ(Files().Copy(*Present, *Source, false), COPY_Fail);
	EXPECT_FALSE(Files().Move(*Present, *Source, false));
	EXPECT_EQ(Project.Read(TEXT("B")), FString(TEXT("b")));
	EXPECT_EQ(Files().Copy(*Present, *Source), COPY_OK);
	EXPECT_EQ(Project.Read(TEXT("B")), FString(TEXT("a")));
	EXPECT_EQ(Files().Copy(*Present, *Project.Path(TEXT("Missing"))), COPY_Fail);
	EXPECT_EQ(Project.Read(TEXT("B")), FString(TEXT("a")));
}

TEST_F(FileManager, DeleteSparesWriteProtectedFilesUnlessToldOtherwise)
{
	const FString File = Project.Write(TEXT("A"), TEXT(""));
	PlatformFiles().SetReadOnly(*File, true);
	EXPECT_FALSE(Files().Delete(*File));
	EXPECT_TRUE(Files().Delete(*File, true, true));
	EXPECT_FALSE(Files().Delete(*File, true));
	EXPECT_TRUE(Files().Delete(*File));
}

TEST_F(FileManager, FolderWithContentIsDeletedOnlyAsATree)
{
	Project.Write(TEXT("Dir/Sub/A"), TEXT("a"));
	const FString Dir = Project.Path(TEXT("Dir"));
	EXPECT_FALSE(Files().DeleteDirectory(*Dir));
	EXPECT_TRUE(Files().DeleteDirectory(*Dir, true, true));
	EXPECT_FALSE(Files().DirectoryExists(*Dir));
	EXPECT_FALSE(Files().DeleteDirectory(*Dir, true));
	EXPECT_TRUE(Files().DeleteDirectory(*Dir));
}

TEST_F(FileManager, DeletingATreeNeverFollowsALink)
{
	Project.Write(TEXT("Precious/A"), TEXT("a"));
	Files().MakeDirectory(*Project.Path(TEXT("Dir")));
	Link(*Project.Path(TEXT("Precious")), TEXT("Dir/Link"));
	EXPECT_TRUE(Files().DeleteDirectory(*Project.Path(TEXT("Dir")), true, true));
	EXPECT_EQ(Project.Read(TEXT("Precious/A")), FString(TEXT("a")));
}

TEST_F(FileManager, MakeDirectoryMakesParentsOnlyAsATree)
{
	EXPECT_FALSE(Files().MakeDirectory(*Project.Path(TEXT("A/B"))));
	EXPECT_TRUE(Files().MakeDirectory(*Project.Path(TEXT("A/B")), true));
	EXPECT_TRUE(Files().MakeDirectory(*Project.Path(TEXT("A/B"))));
	Project.Write(TEXT("File"), TEXT(""));
	EXPECT_FALSE(Files().MakeDirectory(*Project.Path(TEXT("File")), true));
}

TEST_F(FileManager, FindFilesGivesCleanNamesOfOneFolder)
{
	Project.Write(TEXT("Dir/a.PNG"), TEXT(""));
	Project.Write(TEXT("Dir/b.txt"), TEXT(""));
	Project.Write(TEXT("Dir/Sub.png/c.png"), TEXT(""));
	TArray<FString> Names;
	Files().FindFiles(Names, *Project.Path(TEXT("Dir/*.png")), true, false);
	EXPECT_EQ(Names, TArray<FString>({TEXT("a.PNG")}));
	Names.Empty();
	Files().FindFiles(Names, *Project.Path(TEXT("Dir/*.png")), false, true);
	EXPECT_EQ(Names, TArray<FString>({TEXT("Sub.png")}));
	Names.Empty();
	Files().FindFiles(Names, *Project.Path(TEXT("Dir")), TEXT(".txt"));
	EXPECT_EQ(Names, TArray<FString>({TEXT("b.txt")}));
}

TEST_F(FileManager, FindFilesRecursiveBeginsWithTheStartFolderAndIgnoresCase)
{
	Project.Write(TEXT("Dir/a.PNG"), TEXT(""));
	Project.Write(TEXT("Dir/Sub/b.png"), TEXT(""));
	Project.Write(TEXT("Dir/Sub/c.txt"), TEXT(""));
	EXPECT_EQ(List(TEXT("Dir"), TEXT("*.png")), TArray<FString>({TEXT("a.PNG"), TEXT("Sub/b.png")}));
	EXPECT_EQ(List(TEXT("Dir"), TEXT("*"), false, true), TArray<FString>({TEXT("Sub")}));

	TArray<FString> Names({TEXT("before")});
	Files().FindFilesRecursive(Names, *Project.Path(TEXT("Dir/Sub")), TEXT("*.txt"), true, false, false);
	EXPECT_EQ(Names, TArray<FString>({TEXT("before"), Project.Path(TEXT("Dir/Sub/c.txt"))}));
	Files().FindFilesRecursive(Names, *Project.Path(TEXT("Nowhere")), TEXT("*"), true, true);
	EXPECT_EQ(Names, TArray<FString>());
}

TEST_F(FileManager, SearchFollowsLinksButNotInCircles)
{
	Project.Write(TEXT("Elsewhere/a.png"), TEXT(""));
	Files().MakeDirectory(*Project.Path(TEXT("Dir/Sub")), true);
	Link(*Project.Path(TEXT("Elsewhere")), TEXT("Dir/Link"));
	Link(TEXT(".."), TEXT("Dir/Sub/Up"));
	EXPECT_EQ(List(TEXT("Dir")), TArray<FString>({TEXT("Link/a.png")}));
}

TEST_F(FileManager, CopyDirectoryTreeTakesTheDestinationFirst)
{
	Project.Write(TEXT("From/A.txt"), TEXT("a"));
	Project.Write(TEXT("From/Sub/B.txt"), TEXT("b"));
	Files().MakeDirectory(*Project.Path(TEXT("From/Empty")));
	EXPECT_TRUE(PlatformFiles().CopyDirectoryTree(*Project.Path(TEXT("Deep/To/")), *Project.Path(TEXT("From/")), true));
	EXPECT_EQ(List(TEXT("Deep/To"), TEXT("*"), true, true),
		TArray<FString>({TEXT("A.txt"), TEXT("Empty"), TEXT("Sub"), TEXT("Sub/B.txt")}));
	EXPECT_EQ(Project.Read(TEXT("Deep/To/Sub/B.txt")), FString(TEXT("b")));
}

TEST_F(FileManager, CopyDirectoryTreeOverwritesOnlyWhenTold)
{
	Project.Write(TEXT("From/A"), TEXT("new"));
	Project.Write(TEXT("To/A"), TEXT("old"));
	EXPECT_TRUE(PlatformFiles().CopyDirectoryTree(*Project.Path(TEXT("To")), *Project.Path(TEXT("From")), false));
	EXPECT_EQ(Project.Read(TEXT("To/A")), FString(TEXT("old")));
	EXPECT_TRUE(PlatformFiles().CopyDirectoryTree(*Project.Path(TEXT("To")), *Project.Path(TEXT("From")), true));
	EXPECT_EQ(Project.Read(TEXT("To/A")), FString(TEXT("new")));
}

TEST_F(FileManager, CopyDirectoryTreeNamesWhatItCannotCopy)
{
	Project.Write(TEXT("From/A"), TEXT("a"));
	Files().MakeDirectory(*Project.Path(TEXT("To/A")), true);
	const FLogCapture Log(TEXT("LogPlatformFile"));
	EXPECT_FALSE(PlatformFiles().CopyDirectoryTree(*Project.Path(TEXT("To")), *Project.Path(TEXT("From")), true));
	ASSERT_EQ(Log.Warnings().Num(), 1);
	EXPECT_TRUE(Log.Warnings()[0].StartsWith(
		TEXT("Cannot copy '") + Project.Path(TEXT("From/A")) + TEXT("' to '") + Project.Path(TEXT("To/A"))));
}

TEST_F(FileManager, CopyIntoTheSourceItselfEnds)
{
	Project.Write(TEXT("From/A"), TEXT("a"));
	EXPECT_TRUE(PlatformFiles().CopyDirectoryTree(*Project.Path(TEXT("From/Copy")), *Project.Path(TEXT("From")), true));
	EXPECT_EQ(List(TEXT("From")), TArray<FString>({TEXT("A"), TEXT("Copy/A")}));
}
