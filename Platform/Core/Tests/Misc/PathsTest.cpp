#include "Misc/Paths.h"

#include <gtest/gtest.h>

#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "TempProject.h"

namespace
{
FString Collapsed(const TCHAR* Path)
{
	FString Result(Path);
	return FPaths::CollapseRelativeDirectories(Result) ? Result : TEXT("refused: ") + Result;
}

FString RelativeTo(const TCHAR* Path, const TCHAR* Base)
{
	FString Result(Path);
	return FPaths::MakePathRelativeTo(Result, Base) ? Result : TEXT("refused: ") + Result;
}
}

TEST(Paths, ProjectFoldersEndInASlash)
{
	const FTempProject Project;
	const FString Dir = Project.GetDir();
	EXPECT_EQ(FPaths::ProjectDir(), Dir + TEXT("/"));
	EXPECT_EQ(FPaths::ProjectPluginsDir(), Dir + TEXT("/Plugins/"));
	EXPECT_EQ(FPaths::ProjectContentDir(), Dir + TEXT("/Content/"));
	EXPECT_EQ(FPaths::ProjectConfigDir(), Dir + TEXT("/Config/"));
	EXPECT_EQ(FPaths::ProjectSavedDir(), Dir + TEXT("/Saved/"));
	EXPECT_EQ(FPaths::ProjectLogDir(), Dir + TEXT("/Saved/Logs/"));
	EXPECT_EQ(FPaths::ScreenShotDir(), Dir + TEXT("/Saved/Screenshots/LinuxEditor/"));
	EXPECT_TRUE(FPaths::EngineContentDir().EndsWith(TEXT("/Content/")));
	EXPECT_TRUE(FPaths::DirectoryExists(FPaths::EngineDir() + TEXT("Core")));
}

TEST(Paths, ProjectFileWithoutFolderLiesInTheStartFolder)
{
	const FTempProject Project;
	FPaths::SetProjectFilePath(TEXT("Game.uproject"));
	EXPECT_EQ(FPaths::ProjectDir(), FString(TEXT("./")));
}

TEST(Paths, FullPathFoldsDotsAndLeavesDoubledSlashes)
{
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(TEXT("/P//KX/./UI/../Config//")), FString(TEXT("/P//KX/Config//")));
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(TEXT("/A"), TEXT("../B/C.json")), FString(TEXT("/B/C.json")));
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(TEXT("X.json")), FString(FPlatformProcess::BaseDir()) + TEXT("X.json"));
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(TEXT("//")), FString(TEXT("//")));
}

TEST(Paths, FullPathResolvesNoLinks)
{
	const FTempProject Project;
	IFileManager::Get().MakeDirectory(*Project.Path(TEXT("Real")));
	ASSERT_EQ(symlink("Real", TCHAR_TO_UTF8(*Project.Path(TEXT("Link")))), 0);
	EXPECT_EQ(FPaths::ConvertRelativePathToFull(Project.Path(TEXT("Link/A"))), Project.GetDir() + TEXT("/Link/A"));
}

TEST(Paths, AbsoluteIsWhatBeginsWithSlashBackslashOrDrive)
{
	EXPECT_FALSE(FPaths::IsRelative(TEXT("/A")));
	EXPECT_FALSE(FPaths::IsRelative(TEXT("\\A")));
	EXPECT_FALSE(FPaths::IsRelative(TEXT("C:/A")));
	EXPECT_TRUE(FPaths::IsRelative(TEXT("A/B")));
	EXPECT_TRUE(FPaths::IsRelative(TEXT("../A")));
	EXPECT_TRUE(FPaths::IsRelative(TEXT("")));
}

TEST(Paths, CollapsingWorksOnTextAndRefusesToClimbAboveTheRoot)
{
	EXPECT_EQ(Collapsed(TEXT("/A/B/../C")), FString(TEXT("/A/C")));
	EXPECT_EQ(Collapsed(TEXT("A/../B")), FString(TEXT("B")));
	EXPECT_EQ(Collapsed(TEXT("/A/./B/")), FString(TEXT("/A/B/")));
	EXPECT_EQ(Collapsed(TEXT("/A/../../B")), FString(TEXT("refused: /A/../../B")));
	EXPECT_EQ(Collapsed(TEXT("../A")), FString(TEXT("refused: ../A")));
	EXPECT_EQ(Collapsed(TEXT("/A/..B/...")), FString(TEXT("/A/..B/...")));
}

TEST(Paths, PartsOfAFileName)
{
	EXPECT_EQ(FPaths::GetBaseFilename(TEXT("/A/B.b/C.tar.gz")), FString(TEXT("C.tar")));
	EXPECT_EQ(FPaths::GetBaseFilename(TEXT("/A/C.json"), false), FString(TEXT("/A/C")));
	EXPECT_EQ(FPaths::GetBaseFilename(TEXT("/A.b/C")), FString(TEXT("C")));
	EXPECT_EQ(FPaths::GetCleanFilename(TEXT("/A/C.json")), FString(TEXT("C.json")));
	EXPECT_EQ(FPaths::GetPath(TEXT("/A/C.json")), FString(TEXT("/A")));
	EXPECT_EQ(FPaths::GetPath(TEXT("/A/B/")), FString(TEXT("/A/B")));
	EXPECT_EQ(FPaths::GetPath(TEXT("C.json")), FString());
	EXPECT_EQ(FPaths::GetExtension(TEXT("/A/C.tar.gz")), FString(TEXT("gz")));
	EXPECT_EQ(FPaths::GetExtension(TEXT("/A/C.gz"), true), FString(TEXT(".gz")));
	EXPECT_EQ(FPaths::GetExtension(TEXT("/A.b/C")), FString());
}

TEST(Paths, ChangeExtensionTakesItWithOrWithoutDot)
{
	EXPECT_EQ(FPaths::ChangeExtension(TEXT("/A/C.json"), TEXT("py")), FString(TEXT("/A/C.py")));
	EXPECT_EQ(FPaths::ChangeExtension(TEXT("/A/C.json"), TEXT(".py")), FString(TEXT("/A/C.py")));
	EXPECT_EQ(FPaths::ChangeExtension(TEXT("/A.b/C"), TEXT("py")), FString(TEXT("/A.b/C")));
}

TEST(Paths, CombineAndNormalize)
{
	EXPECT_EQ(FPaths::Combine(TEXT("/A"), TEXT("B"), FString(TEXT("C.json"))), FString(TEXT("/A/B/C.json")));

	FString Path(TEXT("C:\\A\\B\\"));
	FPaths::NormalizeFilename(Path);
	EXPECT_EQ(Path, FString(TEXT("C:/A/B/")));
	FPaths::NormalizeDirectoryName(Path);
	EXPECT_EQ(Path, FString(TEXT("C:/A/B")));
}

TEST(Paths, RelativeToTheFolderOfAnother)
{
	EXPECT_EQ(RelativeTo(TEXT("/P/A/B.json"), TEXT("/P/")), FString(TEXT("A/B.json")));
	EXPECT_EQ(RelativeTo(TEXT("/P/B.json"), TEXT("/P/A/C.json")), FString(TEXT("../B.json")));
	EXPECT_EQ(RelativeTo(TEXT("/Q/B.json"), TEXT("/P/")), FString(TEXT("refused: /Q/B.json")));
}

TEST(Paths, UnderDirectoryComparesWholeNames)
{
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/P//A/x"), TEXT("/P/A")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/P/A/../x"), TEXT("/P/A")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/P/A/../../../../etc/x"), TEXT("/P/A")));
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/P/A"), TEXT("/P/A/")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/P/AB"), TEXT("/P/A")));
}

TEST(Paths, FolderIsNoFile)
{
	const FTempProject Project;
	const FString File = Project.Write(TEXT("A.txt"), TEXT("a"));
	EXPECT_TRUE(FPaths::FileExists(File));
	EXPECT_FALSE(FPaths::DirectoryExists(File));
	EXPECT_FALSE(FPaths::FileExists(Project.GetDir()));
	EXPECT_TRUE(FPaths::DirectoryExists(Project.GetDir()));
}
