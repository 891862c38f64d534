#include "TempProject.h"

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "HAL/FileManager.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace
{
FString MakeTemporaryFolder()
{
	std::string Pattern = testing::TempDir() + "KestrixXXXXXX";
	if (!mkdtemp(Pattern.data()))
	{
		ADD_FAILURE() << "Cannot make a folder below " << testing::TempDir();
	}
	return FString(Pattern.c_str());
}

void SetProject(const FString& ProjectFile)
{
	FPaths::SetProjectFilePath(ProjectFile);
	FConfigCacheIni::InitializeConfigSystem();
}
}

FTempProject::FTempProject(const TCHAR* Name)
	: FormerProject(FPaths::GetProjectFilePath())
	, Dir(MakeTemporaryFolder())
{
	SetProject(Write(*(FString(Name) + TEXT(".uproject")), TEXT("{ \"FileVersion\": 3 }\n")));
}

FTempProject::~FTempProject()
{
	SetProject(FormerProject);
	IFileManager::Get().DeleteDirectory(*Dir, false, true);
}

FString FTempProject::Path(const TCHAR* RelativeName) const
{
	return Dir / RelativeName;
}

FString FTempProject::Write(const TCHAR* RelativeName, const FString& Text) const
{
	const FString File = Path(RelativeName);
	EXPECT_TRUE(FFileHelper::SaveStringToFile(Text, *File, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
	return File;
}

FString FTempProject::Read(const TCHAR* RelativeName) const
{
	FString Text;
	EXPECT_TRUE(FFileHelper::LoadFileToString(Text, *Path(RelativeName))) << "no file of that name";
	return Text;
}
