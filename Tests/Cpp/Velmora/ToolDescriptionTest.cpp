#include "Velmora/ToolDescription.h"

#include "Dom/JsonObject.h"
#include "LogCapture.h"
#include "Misc/PackageName.h"
#include "TempProject.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

FString FieldOf(const TSharedPtr<FJsonObject>& Object, const TCHAR* Key)
{
	FString Value = TEXT("(none)");
	if (Object.IsValid())
	{
		Object->TryGetStringField(Key, Value);
	}
	return Value;
}
}

TEST(ToolDescription, MissingFileIsReportedInTheLogAndToTheCaller)
{
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_FALSE(LoadJsonFile(TEXT("/nowhere/Tool.json"), Error).IsValid());

	EXPECT_EQ(Error, FString(TEXT("Json File: /nowhere/Tool.json is Not exists")));
	EXPECT_EQ(Log.Warnings(), FLines({Error}));
}

TEST(ToolDescription, FileWithoutALineIsEmpty)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_FALSE(LoadJsonFile(Path, Error).IsValid());

	EXPECT_EQ(Error, TEXT("Json File: ") + Path + TEXT(" is Empty"));
	EXPECT_EQ(Log.Warnings(), FLines({Error}));
}

TEST(ToolDescription, FileOfBlankLinesIsNotEmptyButNoJson)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "\n\n");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_FALSE(LoadJsonFile(Path, Error).IsValid());

	EXPECT_EQ(Error, TEXT("Deserialize File ") + Path + TEXT(" failed, check: '\\' "));
	EXPECT_EQ(Log.Warnings(), FLines({Error}));
}

TEST(ToolDescription, FieldsKeepTheOrderOfTheText)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), R"({ "c": "1", "a": "2", "b": "3" })");
	FString Error;

	const TSharedPtr<FJsonObject> Object = LoadJsonFile(Path, Error);

	ASSERT_TRUE(Object.IsValid());
	FLines Keys;
	Object->Values.GetKeys(Keys);
	EXPECT_EQ(Keys, FLines({TEXT("c"), TEXT("a"), TEXT("b")}));
}

TEST(ToolDescription, FileThatIncludesItselfIsRefusedInsideAndStillParsed)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{ \"A\": \"1\"\n\"ExternalJson\": \"Tool.json\"\n}");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_EQ(FieldOf(LoadJsonFile(Path, Error), TEXT("A")), FString(TEXT("1")));

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("JsonFile Tool.json has already import in parents, recursively import")}));
	EXPECT_TRUE(Log.Lines().Contains(TEXT("PythonKX: Log: Import External Json Path: Tool.json")));
}

TEST(ToolDescription, FileIsReadAnewAtEachCall)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{\n\"ExternalJson\": \"Part.json\"\n}");
	FString Error;

	Folder.Write(TEXT("Part.json"), R"("A": "1")");
	EXPECT_EQ(FieldOf(LoadJsonFile(Path, Error), TEXT("A")), FString(TEXT("1")));
	Folder.Write(TEXT("Part.json"), R"("A": "2")");
	EXPECT_EQ(FieldOf(LoadJsonFile(Path, Error), TEXT("A")), FString(TEXT("2")));
}

TEST(ToolDescription, MissingIncludedFileLosesOnlyItsText)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{\n\"ExternalJson\": \"gone.json\"\n}");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_TRUE(LoadJsonFile(Path, Error).IsValid());

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("Can't "), TEXT("File: ") + Folder.Path(TEXT("gone.json")) + TEXT(" not exists.")}));
}

TEST(ToolDescription, InclusionWithoutANameIncludesNothing)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{\n\"ExternalJson\":\n\"ExternalJson\": \"open\n}");
	FString Error;

	EXPECT_TRUE(LoadJsonFile(Path, Error).IsValid());
}

TEST(ToolDescription, SyntaxErrorIsPlacedInTheFileAndLineWhereItWasWritten)
{
	const FTempProject Folder;
	const FString Part = Folder.Write(TEXT("Part.json"), "// a comment\n\"A\": 1,\n\"B\" 2\n");
	const FString Path = Folder.Write(TEXT("Tool.json"), "{\n// a comment\n\"ExternalJson\": \"Part.json\"\n}");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Error;

	EXPECT_FALSE(LoadJsonFile(Path, Error).IsValid());

	const FString Place = TEXT("PythonKX: Display: ") + Part + TEXT(":3: ");
	EXPECT_TRUE(Log.Lines().ContainsByPredicate([&Place](const FString& Line) { return Line.StartsWith(Place); }));
}

TEST(ToolDescription, NonAsciiTextSurvives)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), TEXT("{ \"TabLabel\": \"Größe \U0001F3A8\" }"));
	FString DataPath;
	FString Label;

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Label));

	EXPECT_EQ(Label, FString(TEXT("Größe \U0001F3A8")));
}

TEST(ToolDescription, NumberOrBoolWhereATextBelongsIsReadAsText)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), TEXT("{ \"TabLabel\": 5, \"InitPyCmd\": true, \"OnClosePyCmd\": 1.5 }"));
	const FLogCapture Log;
	FString DataPath;
	FString Value;

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Value));
	EXPECT_EQ(Value, FString(TEXT("5")));
	EXPECT_TRUE(GetInitPyCmd(Path, Value));
	EXPECT_EQ(Value, FString(TEXT("true")));
	EXPECT_TRUE(GetOnClosePyCmd(Path, Value));
	EXPECT_EQ(Value, FString(TEXT("1.5")));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(ToolDescription, LargeDescriptionIsReadLineByLine)
{
	constexpr int32 NumLines = 200000;
	const FTempProject Folder;
	FString Source = TEXT("{\n");
	for (int32 Index = 0; Index < NumLines; ++Index)
	{
		Source += TEXT("// a line that leaves nothing behind\n\"Key\": 1,\n");
	}
	Source += TEXT("\"Last\": \"here\" }\n");
	const FString Path = Folder.Write(TEXT("Tool.json"), Source);
	FString Error;

	EXPECT_EQ(FieldOf(LoadJsonFile(Path, Error), TEXT("Last")), FString(TEXT("here")));
}

TEST(InitTabGeometry, ArrayWithoutTwoNumbersLeavesTheDefault)
{
	const FTempProject Folder;
	for (const char* Value : {"[800]", "[800, \"x\"]", "[]", "\"800, 600\"", "[\"800\", 600]", "[null, 1]", "800"})
	{
		const FString Path = Folder.Write(TEXT("Tool.json"), (std::string("{ \"InitTabSize\": ") + Value + " }").c_str());
		FVector2D Size(1.0, 1.0);
		FVector2D Position(1.0, 1.0);

		EXPECT_TRUE(GetInitTabGeometry(Path, Size, Position)) << Value;

		EXPECT_EQ(Size, FVector2D(-1.0, -1.0)) << Value;
		EXPECT_EQ(Position, FVector2D(-1.0, -1.0)) << Value;
	}
}

TEST(InitTabGeometry, FirstTwoNumbersCount)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), R"({ "InitTabSize": [800, 600.5, "x"], "InitTabPosition": [-20, 0] })");
	FVector2D Size;
	FVector2D Position;

	EXPECT_TRUE(GetInitTabGeometry(Path, Size, Position));

	EXPECT_EQ(Size, FVector2D(800.0, 600.5));
	EXPECT_EQ(Position, FVector2D(-20.0, 0.0));
}

TEST(InitTabGeometry, UnreadableFileLeavesTheOutputs)
{
	FVector2D Size(1.0, 2.0);
	FVector2D Position(3.0, 4.0);

	EXPECT_FALSE(GetInitTabGeometry(TEXT("/nowhere/Tool.json"), Size, Position));

	EXPECT_EQ(Size, FVector2D(1.0, 2.0));
	EXPECT_EQ(Position, FVector2D(3.0, 4.0));
}

TEST(DataAndTabLabel, DataPathWithoutAPackageIsReportedAndKept)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), R"({ "VelmoraData": "/Game/Nowhere/Data", "TabLabel": "My Tool" })");
	const FLogCapture Log(TEXT("PythonKX"));
	FString DataPath;
	FString Label;

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Label));

	EXPECT_EQ(DataPath, FString(TEXT("/Game/Nowhere/Data")));
	EXPECT_EQ(Label, FString(TEXT("My Tool")));
	EXPECT_EQ(Log.Errors(), FLines({TEXT("Json File can't find: VelmoraData, Default data used. @ /Game/Nowhere/Data")}));
}

TEST(DataAndTabLabel, DataPathOfAPackageOnDiskIsNoError)
{
	const FTempProject Folder;
	Folder.Write(TEXT("Content/Data.uasset"), "");
	FPackageName::RegisterMountPoint(TEXT("/DataTest/"), Folder.Path(TEXT("Content")));
	const FString Path = Folder.Write(TEXT("Tool.json"), R"({ "VelmoraData": "/DataTest/Data" })");
	const FLogCapture Log(TEXT("PythonKX"));
	FString DataPath;
	FString Label;

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Label));

	EXPECT_EQ(DataPath, FString(TEXT("/DataTest/Data")));
	EXPECT_EQ(Log.Lines(), FLines());
	FPackageName::UnRegisterMountPoint(TEXT("/DataTest/"), Folder.Path(TEXT("Content")));
}

TEST(DataAndTabLabel, EmptyDataPathMeansTheDefaultData)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), R"({ "VelmoraData": "" })");
	const FLogCapture Log(TEXT("PythonKX"));
	FString DataPath = TEXT("before");
	FString Label;

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Label));

	EXPECT_EQ(DataPath, FString());
	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Log: Default data used.")}));
}

TEST(DataAndTabLabel, MissingKeysSayNothingAndKeepTheLabel)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{}");
	const FLogCapture Log(TEXT("PythonKX"));
	FString DataPath = TEXT("before");
	FString Label = TEXT("before");

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Label));

	EXPECT_EQ(DataPath, FString());
	EXPECT_EQ(Label, FString(TEXT("before")));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(DataAndTabLabel, ValuesThatAreNoTextAreReportedByTheJsonValueAndCountAsEmpty)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), R"({ "VelmoraData": [], "TabLabel": {} })");
	const FLogCapture Log(TEXT("PythonKX"));
	const FLogCapture Json(TEXT("LogJson"));
	FString DataPath;
	FString Label = TEXT("before");

	EXPECT_TRUE(GetDataAndTabLabel(Path, DataPath, Label));

	EXPECT_EQ(Label, FString());
	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Log: Default data used.")}));
	EXPECT_EQ(Json.Errors(),
		FLines(
			{TEXT("Json Value of type 'Array' used as a 'String'."), TEXT("Json Value of type 'Object' used as a 'String'.")}));
}

TEST(DescriptionCommands, StringOfAnyNameIsFoundIfItHasACharacter)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), R"json({ "OnMapChangedCmd": "changed()", "Empty": "" })json");
	FString Value;

	EXPECT_TRUE(GetStringFieldOfFile(Path, TEXT("OnMapChangedCmd"), Value));
	EXPECT_EQ(Value, FString(TEXT("changed()")));
	EXPECT_FALSE(GetStringFieldOfFile(Path, TEXT("Empty"), Value));
	EXPECT_EQ(Value, FString());
}

TEST(DescriptionCommands, InitCommandIsFoundAndItsAbsenceIsReported)
{
	const FTempProject Folder;
	const FString With = Folder.Write(TEXT("With.json"), "{ \"InitPyCmd\": \"init(%JsonPath)\" }");
	const FString Without = Folder.Write(TEXT("Without.json"), "{}");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Command;

	EXPECT_TRUE(GetInitPyCmd(With, Command));
	EXPECT_EQ(Command, FString(TEXT("init(%JsonPath)")));
	EXPECT_FALSE(GetInitPyCmd(Without, Command));
	EXPECT_EQ(Command, FString());

	EXPECT_EQ(Log.Errors(), FLines({TEXT("Json File can't find: InitPyCmd  ") + Without}));
}

TEST(DescriptionCommands, CloseCommandMayBeMissing)
{
	const FTempProject Folder;
	const FString Path = Folder.Write(TEXT("Tool.json"), "{}");
	const FLogCapture Log(TEXT("PythonKX"));
	FString Command = TEXT("before");

	EXPECT_FALSE(GetOnClosePyCmd(Path, Command));

	EXPECT_EQ(Command, FString());
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(DescriptionCommands, UnreadableFileIsReportedByEveryGetter)
{
	const FLogCapture Log(TEXT("PythonKX"));
	FString Value;
	TSharedPtr<FJsonObject> Menu;

	EXPECT_FALSE(GetInitPyCmd(TEXT("/nowhere.json"), Value));
	EXPECT_FALSE(GetOnClosePyCmd(TEXT("/nowhere.json"), Value));
	EXPECT_FALSE(GetStringFieldOfFile(TEXT("/nowhere.json"), TEXT("Any"), Value));
	EXPECT_FALSE(GetOnTabContextMenu(TEXT("/nowhere.json"), Menu));

	const FString Error = TEXT("Json object is not Valid /nowhere.json");
	EXPECT_EQ(Log.Errors(), FLines({Error, Error, Error, Error}));
}

TEST(DescriptionCommands, TabMenuIsAnObject)
{
	const FTempProject Folder;
	const FString With = Folder.Write(TEXT("With.json"), R"({ "OnTabContextMenu": { "items": [] } })");
	const FString Without = Folder.Write(TEXT("Without.json"), R"({ "OnTabContextMenu": "items" })");
	TSharedPtr<FJsonObject> Menu;

	EXPECT_FALSE(GetOnTabContextMenu(Without, Menu));
	EXPECT_FALSE(Menu.IsValid());
	EXPECT_TRUE(GetOnTabContextMenu(With, Menu));
	EXPECT_TRUE(Menu.IsValid() && Menu->HasField(TEXT("items")));
}
