#include "Misc/ConfigCacheIni.h"

#include <gtest/gtest.h>

#include "LogCapture.h"
#include "Misc/Paths.h"
#include "TempProject.h"

namespace
{
class ConfigCacheIni : public testing::Test
{
protected:
	FString Get(const TCHAR* Key) const
	{
		FString Value(TEXT("untouched"));
		GConfig->GetString(TEXT("Settings"), Key, Value, File);
		return Value;
	}

	void WriteFile(const TCHAR* Text) const { Project.Write(TEXT("Config.ini"), Text); }

	FString ReadFile() const { return Project.Read(TEXT("Config.ini")); }

	const FTempProject Project;
	const FString File = FConfigCacheIni::NormalizeConfigIniPath(FPaths::ProjectDir() + TEXT("/Config.ini"));
};
}

TEST_F(ConfigCacheIni, SectionsAndKeysIgnoreCase)
{
	WriteFile(TEXT("[SETTINGS]\nFOLDER = /KX/Kestrix \n"));
	EXPECT_EQ(Get(TEXT("Folder")), FString(TEXT("/KX/Kestrix")));
}

TEST_F(ConfigCacheIni, GetterThatFindsNothingLeavesItsOutputAlone)
{
	WriteFile(TEXT("[Settings]\nA=1\n"));
	int32 Number = 7;
	bool bFlag = true;
	float Fraction = 0.5f;
	FString Text(TEXT("kept"));
	EXPECT_FALSE(GConfig->GetInt(TEXT("Settings"), TEXT("B"), Number, File));
	EXPECT_FALSE(GConfig->GetBool(TEXT("Other"), TEXT("A"), bFlag, File));
	EXPECT_FALSE(GConfig->GetFloat(TEXT("Settings"), TEXT("A"), Fraction, File + TEXT("x")));
	EXPECT_FALSE(GConfig->GetString(TEXT("Settings"), TEXT("B"), Text, File));
	EXPECT_EQ(Number, 7);
	EXPECT_TRUE(bFlag);
	EXPECT_EQ(Fraction, 0.5f);
	EXPECT_EQ(Text, FString(TEXT("kept")));
}

TEST_F(ConfigCacheIni, ValuesAreReadLikeToBoolAtoiAndAtof)
{
	WriteFile(TEXT("[Settings]\nYes=yes\nNo=nonsense\nNumber=12 apples\nFraction=1.5\n"));
	bool bYes = false;
	bool bNo = true;
	int32 Number = 0;
	float Fraction = 0.0f;
	EXPECT_TRUE(GConfig->GetBool(TEXT("Settings"), TEXT("Yes"), bYes, File) && bYes);
	EXPECT_TRUE(GConfig->GetBool(TEXT("Settings"), TEXT("No"), bNo, File) && !bNo);
	EXPECT_TRUE(GConfig->GetInt(TEXT("Settings"), TEXT("Number"), Number, File));
	EXPECT_TRUE(GConfig->GetFloat(TEXT("Settings"), TEXT("Fraction"), Fraction, File));
	EXPECT_EQ(Number, 12);
	EXPECT_EQ(Fraction, 1.5f);
}

TEST_F(ConfigCacheIni, ChangeOnDiskIsNotSeenWhileTheFileIsKept)
{
	WriteFile(TEXT("[Settings]\nA=old\n"));
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("old")));
	WriteFile(TEXT("[Settings]\nA=new\n"));
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("old")));

	GConfig->Flush(true, File);
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("new")));
}

TEST_F(ConfigCacheIni, UnloadedFileIsReadAgainAndItsChangesAreForgotten)
{
	WriteFile(TEXT("[Settings]\nA=old\n"));
	GConfig->SetString(TEXT("Settings"), TEXT("A"), TEXT("changed"), File);
	GConfig->UnloadFile(File);
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("old")));
}

TEST_F(ConfigCacheIni, FileThatAppearsAfterAFruitlessReadIsSeen)
{
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("untouched")));
	WriteFile(TEXT("[Settings]\nA=here\n"));
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("here")));
}

TEST_F(ConfigCacheIni, NameIsNormalisedBySlashes)
{
	EXPECT_EQ(FConfigCacheIni::NormalizeConfigIniPath(TEXT("/P//KX\\Config.ini")), FString(TEXT("/P/KX/Config.ini")));
	EXPECT_EQ(FConfigCacheIni::NormalizeConfigIniPath(TEXT("../P/KX.ini")), FString(TEXT("../P/KX.ini")));
}

// Files are known by normalised names only; who asks under another one has an entry of its own, which no flush finds.
TEST_F(ConfigCacheIni, AnotherSpellingOfAFileIsAnotherEntryThatFlushMisses)
{
	const FString Spelled = FPaths::ProjectDir() + TEXT("/Config.ini");
	ASSERT_TRUE(Spelled.Contains(TEXT("//")));
	WriteFile(TEXT("[Settings]\nA=1\n"));

	GConfig->SetString(TEXT("Settings"), TEXT("A"), TEXT("2"), Spelled);

	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("1")));
	GConfig->Flush(true, Spelled);
	EXPECT_EQ(ReadFile(), FString(TEXT("[Settings]\nA=1\n")));
	FString Kept;
	EXPECT_TRUE(GConfig->GetString(TEXT("Settings"), TEXT("A"), Kept, Spelled));
	EXPECT_EQ(Kept, FString(TEXT("2")));
}

TEST_F(ConfigCacheIni, FlushWritesOnlyWhatWasChanged)
{
	WriteFile(TEXT("; a comment\n[Settings]\nA=1\n"));
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("1")));
	GConfig->SetInt(TEXT("Settings"), TEXT("A"), 1, File);
	GConfig->Flush(true, File);
	EXPECT_EQ(ReadFile(), FString(TEXT("; a comment\n[Settings]\nA=1\n")));
}

TEST_F(ConfigCacheIni, WriteRendersTheWholeFileInItsOrderWithoutComments)
{
	WriteFile(TEXT("; a comment\n[B]\nTwo=2\nOne=1\n[A]\nThree=3\n"));
	GConfig->SetBool(TEXT("B"), TEXT("Flag"), true, File);
	GConfig->SetBool(TEXT("A"), TEXT("Three"), false, File);
	GConfig->SetFloat(TEXT("C"), TEXT("New"), 0.25f, File);
	GConfig->Flush(true, File);
	EXPECT_EQ(ReadFile(), FString(TEXT("[B]\nTwo=2\nOne=1\nFlag=True\n\n[A]\nThree=False\n\n[C]\nNew=0.250000\n\n")));
}

TEST_F(ConfigCacheIni, WriteMakesMissingFolders)
{
	const FString Deep = Project.Path(TEXT("KX/Kestrix/Config/Config.ini"));
	GConfig->SetString(TEXT("Settings"), TEXT("A"), TEXT("1"), Deep);
	GConfig->Flush(true, Deep);
	EXPECT_EQ(Project.Read(TEXT("KX/Kestrix/Config/Config.ini")), FString(TEXT("[Settings]\nA=1\n\n")));
}

TEST_F(ConfigCacheIni, FileThatCannotBeWrittenIsKeptWithAWarning)
{
	const FString Below = Project.Write(TEXT("File"), TEXT("")) + TEXT("/Config.ini");
	GConfig->SetString(TEXT("Settings"), TEXT("A"), TEXT("1"), Below);
	const FLogCapture Log(TEXT("LogConfig"));
	GConfig->Flush(true, Below);

	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("Cannot write the settings file '") + Below + TEXT("'; the changes are kept in memory.")}));
	FString Value;
	EXPECT_TRUE(GConfig->GetString(TEXT("Settings"), TEXT("A"), Value, Below));
}

TEST_F(ConfigCacheIni, TrickyValuesAreWrittenInQuotesAndComeBack)
{
	const TCHAR* const Values[] = {TEXT(" outer blanks "), TEXT("say \"hello\""), TEXT("{ \"Json\": [1] }"),
		TEXT("https://host/path"), TEXT("a\nb"), TEXT("C:\\Folder\\"), TEXT("gr\u00FCn \U0001F3A8"), TEXT("a=b;c"), TEXT(""),
		TEXT("C:\\new\\table")};
	for (const TCHAR* const Value : Values)
	{
		GConfig->SetString(TEXT("Settings"), TEXT("A"), Value, File);
		GConfig->Flush(true, File);
		EXPECT_TRUE(Get(TEXT("A")).Equals(Value)) << testing::PrintToString(FString(Value));
	}
	GConfig->SetString(TEXT("Settings"), TEXT("A"), TEXT("https://host"), File);
	GConfig->Flush(true, File);
	EXPECT_EQ(ReadFile(), FString(TEXT("[Settings]\nA=\"https://host\"\n\n")));
}

TEST_F(ConfigCacheIni, UnquotedDoubleSlashBeginsAComment)
{
	WriteFile(TEXT("[Settings]\nA=1 // one\nB=\"http://x\" // address\n"));
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("1")));
	EXPECT_EQ(Get(TEXT("B")), FString(TEXT("http://x")));
}

TEST_F(ConfigCacheIni, RepeatedKeyIsAnArrayWhoseLastValueIsTheString)
{
	WriteFile(TEXT("[Settings]\nPath=a\nPath=b\n"));
	TArray<FString> Paths;
	EXPECT_EQ(GConfig->GetArray(TEXT("Settings"), TEXT("Path"), Paths, File), 2);
	EXPECT_EQ(Paths, TArray<FString>({TEXT("a"), TEXT("b")}));
	EXPECT_EQ(Get(TEXT("Path")), FString(TEXT("b")));

	GConfig->SetArray(TEXT("Settings"), TEXT("Path"), {TEXT("c"), TEXT("d")}, File);
	GConfig->Flush(true, File);
	EXPECT_EQ(ReadFile(), FString(TEXT("[Settings]\nPath=c\nPath=d\n\n")));
}

TEST_F(ConfigCacheIni, SectionIsListedAndEmptied)
{
	WriteFile(TEXT("[Settings]\nA=1\nB=2\nB=3\n[Other]\nC=4\n"));
	TArray<FString> Lines;
	EXPECT_TRUE(GConfig->GetSection(TEXT("Settings"), Lines, File));
	EXPECT_EQ(Lines, TArray<FString>({TEXT("A=1"), TEXT("B=2"), TEXT("B=3")}));

	EXPECT_TRUE(GConfig->EmptySection(TEXT("Settings"), File));
	EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("Settings"), File));
	EXPECT_TRUE(GConfig->RemoveKey(TEXT("Other"), TEXT("C"), File));
	EXPECT_FALSE(GConfig->RemoveKey(TEXT("Other"), TEXT("C"), File));
	GConfig->Flush(true, File);
	EXPECT_EQ(ReadFile(), FString());
}

TEST_F(ConfigCacheIni, ProjectDefaultsLieBelowTheSavedFile)
{
	Project.Write(TEXT("Config/DefaultEngine.ini"),
		TEXT("[Python]\nEnabled=False\n+Paths=a\n+Paths=b\n+Paths=A\n-Paths=b\n.Paths=c\nName=default\n!Name=\nName=kept\n"));
	Project.Write(TEXT("Saved/Config/LinuxEditor/Engine.ini"), TEXT("[Python]\nEnabled=True\n"));

	bool bEnabled = false;
	EXPECT_TRUE(GConfig->GetBool(TEXT("Python"), TEXT("Enabled"), bEnabled, GEngineIni) && bEnabled);
	TArray<FString> Paths;
	GConfig->GetArray(TEXT("Python"), TEXT("Paths"), Paths, GEngineIni);
	EXPECT_EQ(Paths, TArray<FString>({TEXT("a"), TEXT("c")}));
	FString Name;
	EXPECT_TRUE(GConfig->GetString(TEXT("Python"), TEXT("Name"), Name, GEngineIni));
	EXPECT_EQ(Name, FString(TEXT("kept")));
}

TEST_F(ConfigCacheIni, SavedFileHoldsOnlyWhatDiffersFromTheDefaults)
{
	Project.Write(TEXT("Config/DefaultEditorPerProjectUserSettings.ini"), TEXT("[View]\nSize=1\nColor=red\n"));
	GConfig->SetInt(TEXT("View"), TEXT("Size"), 2, GEditorPerProjectIni);
	GConfig->Flush(false);
	EXPECT_EQ(
		Project.Read(TEXT("Saved/Config/LinuxEditor/EditorPerProjectUserSettings.ini")), FString(TEXT("[View]\nSize=2\n\n")));
}

TEST_F(ConfigCacheIni, LinesBeforeTheFirstSectionAndWithoutEqualSignDoNotCount)
{
	WriteFile(TEXT("A=lost\n[Settings\nB\n[Settings]\njust text\nC=3\n"));
	EXPECT_EQ(Get(TEXT("A")), FString(TEXT("untouched")));
	EXPECT_EQ(Get(TEXT("C")), FString(TEXT("3")));
}
