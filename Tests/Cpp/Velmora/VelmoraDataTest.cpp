#include "Velmora/VelmoraData.h"

#include "Engine/Blueprint.h"
#include "UObject/Package.h"
#include "LogCapture.h"
#include "Misc/PackageName.h"
#include "RunningPlugin.h"
#include "ToolTabs.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FString EmptyTool = ToolWithRoot("{ \"SBox\": {} }");

UVelmoraData& MakeData()
{
	return *NewObject<UVelmoraData>();
}
}

TEST(VelmoraData, ClassIsOneToDeriveBlueprintsFromAndHasNoReflectedState)
{
	const UClass* const Class = UVelmoraData::StaticClass();

	EXPECT_TRUE(Class->GetBoolMetaData(TEXT("BlueprintType")));
	EXPECT_TRUE(Class->GetBoolMetaData(TEXT("IsBlueprintBase")));
	EXPECT_EQ(Class->GetSuperClass(), UObject::StaticClass());
	EXPECT_FALSE(TFieldIterator<FProperty>(Class)) << "a property";
}

TEST(VelmoraData, NewNameIsRecordedWithItsPath)
{
	UVelmoraData& Data = MakeData();
	const TSharedRef<SWidget> Widget = SNew(SBox);

	EXPECT_TRUE(Data.AddNamedWidget("Box", TEXT("/SBox"), Widget));

	EXPECT_EQ(Data.GetNamedWidget("box"), Widget);
	EXPECT_EQ(Data.NamedWidgetPaths.FindRef("Box"), FString(TEXT("/SBox")));
}

TEST(VelmoraData, KnownNameGetsTheLaterWidgetAndATrace)
{
	UVelmoraData& Data = MakeData();
	Data.AddNamedWidget("Name", TEXT("/SBox"), SNew(SBox));
	const TSharedRef<SWidget> Later = SNew(SBorder);
	const FLogCapture Log;

	EXPECT_FALSE(Data.AddNamedWidget("Name", TEXT("/SBorder"), Later));

	EXPECT_EQ(Data.GetNamedWidget("Name"), Later);
	EXPECT_EQ(Data.NamedWidgetPaths.FindRef("Name"), FString(TEXT("/SBorder")));
	EXPECT_EQ(
		Log.Lines(), FLines({TEXT("PythonKX: Log: Key: Name Has existed in NamedWidget, Widget: SBorder @ ") + Data.GetName()}));
}

TEST(VelmoraData, UnknownNameIsAWarningThatListsTheKnownOnes)
{
	UVelmoraData& Data = MakeData();
	const FLogCapture Log;

	EXPECT_FALSE(Data.GetNamedWidget("C").IsValid());
	Data.AddNamedWidget("A", TEXT("/SBox"), SNew(SBox));
	Data.AddNamedWidget("B", TEXT("/SBox"), SNew(SBox));
	EXPECT_FALSE(Data.GetNamedWidget("C").IsValid());

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("PythonKX: Warning: Cant't find Widget by name: C  Availables: []"),
			TEXT("PythonKX: Warning: Cant't find Widget by name: C  Availables: [A, B, ]")}));
}

TEST(VelmoraData, NameUsedTwiceInADescriptionReachesTheLaterWidget)
{
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("A.json"),
		ToolWithRoot(
			R"({ "SVerticalBox": { "Slots": [ { "SBox": { "Aka": "Twice" } }, { "SBorder": { "Aka": "Twice" } } ] } })"));

	const TSharedRef<SWidget> Column = ChildOf(OpenToolTabs[0]->GetContent());
	EXPECT_EQ(Outline(Column), FString(TEXT("SVerticalBox[SBox SBorder]")));
	EXPECT_EQ(Data.GetNamedWidget("Twice"), ChildOf(Column, 1));
}

TEST(VelmoraData, PythonFlagIsWhatWasSetLast)
{
	EXPECT_FALSE(UVelmoraData::GetPythonFlag());
	UVelmoraData::SetPythonFlag(true);
	EXPECT_TRUE(UVelmoraData::GetPythonFlag());
	UVelmoraData::SetPythonFlag(false);
	EXPECT_FALSE(UVelmoraData::GetPythonFlag());
}

TEST(VelmoraData, FirstLaunchMakesARootedObjectNamedAfterTheFile)
{
	FRunningPlugin Plugin;
	const FLogCapture Log(TEXT("PythonKX"));

	UVelmoraData& Data = Plugin.Launch(TEXT("Dir/Tool.json"), EmptyTool);

	EXPECT_EQ(Data.GetName(), FString(TEXT("UVelmoraData_Tool")));
	EXPECT_EQ(Data.GetOuter(), GetTransientPackage());
	EXPECT_EQ(Data.GetClass()->GetPathName(), FString(TEXT("/Script/Kestrix.VelmoraData")));
	EXPECT_TRUE(Data.IsRooted());
	EXPECT_TRUE(Log.HasLine(TEXT("PythonKX: Log: GetToolsDataInstance: Creat from UVelmoraData")));
}

TEST(VelmoraData, CollectionLeavesTheObjectOfAClosedToolAlive)
{
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("Tool.json"), ToolWithRoot(R"({ "SBox": { "Aka": "Box" } })"));
	UVelmoraData::RequestClose(TEXT("Tool.json"));

	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);

	EXPECT_EQ(FKestrixModule::Get().GetToolsDataInstanceByName(Plugin.Project.Path(TEXT("KX/Kestrix/Python/Tool.json"))), &Data);
	EXPECT_TRUE(Data.GetNamedWidget("Box").IsValid());
}

TEST(VelmoraData, ToolOpenedAgainKeepsItsObjectAndGivesItTheNewWidgets)
{
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("Tool.json"), ToolWithRoot(R"({ "SBox": { "Aka": "Name" } })"));
	UVelmoraData::RequestClose(TEXT("Tool.json"));
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(&Plugin.Launch(TEXT("Tool.json"), ToolWithRoot(R"({ "SBorder": { "Aka": "Name" } })")), &Data);

	EXPECT_EQ(Data.GetNamedWidget("Name"), ChildOf(OpenToolTabs[0]->GetContent()));
	EXPECT_TRUE(Log.HasLine(TEXT("PythonKX: Log: Key: Name Has existed in NamedWidget, Widget: SBorder @ UVelmoraData_Tool")));
}

TEST(VelmoraData, ClassIsFixedAtTheFirstLaunch)
{
	FRunningPlugin Plugin;
	const FString Content = Plugin.Project.Path(TEXT("Content/"));
	FPackageName::RegisterMountPoint(TEXT("/KestrixTest/"), Content);
	Plugin.Project.Write(TEXT("Content/Data.uasset"), TEXT("nothing"));
	UVelmoraData& Data = Plugin.Launch(TEXT("Tool.json"), ToolWithRoot(R"({ "SBox": { "Aka": "Old" } })"));
	UVelmoraData::RequestClose(TEXT("Tool.json"));
	const FLogCapture Log(TEXT("PythonKX"));

	EXPECT_EQ(&Plugin.Launch(TEXT("Tool.json"),
				  R"({ "InitPyCmd": "", "VelmoraData": "/KestrixTest/Data", "Root": { "SBox": { "Aka": "New" } } })"),
		&Data);
	FPackageName::UnRegisterMountPoint(TEXT("/KestrixTest/"), Content);

	EXPECT_TRUE(Data.GetNamedWidget("Old").IsValid()) << "an object of this name was made anew at its address";
	EXPECT_TRUE(Data.GetNamedWidget("New").IsValid());
	for (const FString& Line : Log.Lines())
	{
		EXPECT_FALSE(Line.Contains(TEXT("GetToolsDataInstance"))) << TCHAR_TO_UTF8(*Line);
	}
}

TEST(VelmoraData, PackageWithoutABlueprintFallsBackToThePlainClass)
{
	FRunningPlugin Plugin;
	const FString Content = Plugin.Project.Path(TEXT("Content/"));
	FPackageName::RegisterMountPoint(TEXT("/KestrixTest/"), Content);
	Plugin.Project.Write(TEXT("Content/NoBlueprint.uasset"), TEXT("nothing"));
	ASSERT_TRUE(FPackageName::DoesPackageExist(TEXT("/KestrixTest/NoBlueprint")));
	const FString Path = Plugin.Project.Path(TEXT("KX/Kestrix/Python/Tool.json"));
	const FLogCapture Log(TEXT("PythonKX"));

	const UVelmoraData* const Data = FKestrixModule::Get().GetToolsDataInstance(Path, TEXT("/KestrixTest/NoBlueprint"));
	FPackageName::UnRegisterMountPoint(TEXT("/KestrixTest/"), Content);

	EXPECT_EQ(Data->GetClass(), UVelmoraData::StaticClass());
	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Log: GetToolsDataInstance: Creat from UVelmoraData")}));
}

TEST(VelmoraData, ToolsWithOneFileNameKeepAnObjectEach)
{
	FRunningPlugin Plugin;
	UVelmoraData& First = Plugin.Launch(TEXT("A/Tool.json"), ToolWithRoot(R"({ "SBox": { "Aka": "OfA" } })"));

	UVelmoraData& Second = Plugin.Launch(TEXT("B/Tool.json"), ToolWithRoot(R"({ "SBox": { "Aka": "OfB" } })"));

	EXPECT_NE(&First, &Second);
	EXPECT_EQ(First.GetName(), FString(TEXT("UVelmoraData_Tool")));
	EXPECT_NE(Second.GetName(), First.GetName());
	EXPECT_TRUE(First.GetNamedWidget("OfA").IsValid());
	EXPECT_FALSE(Second.GetNamedWidget("OfA").IsValid());
	EXPECT_TRUE(Second.GetNamedWidget("OfB").IsValid());
	EXPECT_TRUE(Second.IsRooted());
	EXPECT_EQ(FKestrixModule::Get().GetToolPathOfDataObject(&Second), Plugin.Project.Path(TEXT("KX/Kestrix/Python/B/Tool.json")));
}

TEST(VelmoraData, ToolsOfOneFileNameAndOneBlueprintKeepAnObjectEach)
{
	FRunningPlugin Plugin;
	const FString Content = Plugin.Project.Path(TEXT("Content/"));
	FPackageName::RegisterMountPoint(TEXT("/KestrixTest/"), Content);
	Plugin.Project.Write(TEXT("Content/Data.uasset"), TEXT("nothing"));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(CreatePackage(TEXT("/KestrixTest/Data")), "Data");
	Blueprint->GeneratedClass = UVelmoraData::StaticClass();
	const FString Folder = Plugin.Project.Path(TEXT("KX/Kestrix/Python/"));

	const UVelmoraData* const First =
		FKestrixModule::Get().GetToolsDataInstance(Folder + TEXT("A/Tool.json"), TEXT("/KestrixTest/Data"));
	const UVelmoraData* const Second =
		FKestrixModule::Get().GetToolsDataInstance(Folder + TEXT("B/Tool.json"), TEXT("/KestrixTest/Data"));
	FPackageName::UnRegisterMountPoint(TEXT("/KestrixTest/"), Content);

	EXPECT_EQ(First->GetName(), FString(TEXT("Data_Tool")));
	EXPECT_NE(First, Second);
	EXPECT_NE(Second->GetName(), First->GetName());
}

TEST(VelmoraData, PathOfAnObjectIsThatOfItsTool)
{
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("A.json"), EmptyTool);

	EXPECT_EQ(FKestrixModule::Get().GetToolPathOfDataObject(&Data), Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json")));
	EXPECT_EQ(FKestrixModule::Get().GetToolPathOfDataObject(&MakeData()), FString());
}
