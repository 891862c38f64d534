#include "Velmora/VelmoraGenerator.h"

#include "Dom/JsonObject.h"
#include "LogCapture.h"
#include "TempProject.h"
#include "Types/ISlateMetaData.h"
#include "UObject/UObjectGlobals.h"
#include "Velmora/JsonText.h"
#include "Velmora/KeyTables.h"
#include "Velmora/SVelmoraWidget.h"
#include "Velmora/VelmoraData.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

/** The text that a widget made by MakeErrorWidget shows. */
FString ErrorTextOf(const TSharedRef<SWidget>& Widget)
{
	EXPECT_EQ(Outline(Widget), FString(TEXT("SVerticalBox[STextBlock]")));
	return As<STextBlock>(ChildOf(Widget))->GetText().ToString();
}

FString GenerateOutline(const char* Description)
{
	const FTempProject Project;
	return Outline(GenerateWidgetFromFile(Project.Write(TEXT("Tool.json"), Description), TEXT("Root"), nullptr));
}

/** Widgets of which the walk knows the name of their type alone. */
class SComboBox : public SBox
{
};

class SDropTarget : public SBox
{
};

/** Detailed log lines, for as long as it lives. */
struct FDetailedLog
{
	FDetailedLog() { bLogCreateWidget = true; }
	~FDetailedLog() { bLogCreateWidget = false; }
};
}

TEST(VelmoraGenerator, EmptyRootObjectShowsNoWidget)
{
	const FTempProject Project;
	const FString Path = Project.Write(TEXT("Tool.json"), R"({ "Root": {} })");

	EXPECT_EQ(ErrorTextOf(GenerateWidgetFromFile(Path, TEXT("Root"), nullptr)), FString(TEXT("No Widget")));
}

TEST(VelmoraGenerator, MissingRootOrOneThatIsNoObjectShowsNoWidget)
{
	const FTempProject Project;
	for (const char* Description : {R"({})", R"({ "Root": [] })", R"({ "Root": "SBox" })"})
	{
		const FString Path = Project.Write(TEXT("Tool.json"), Description);
		EXPECT_EQ(ErrorTextOf(GenerateWidgetFromFile(Path, TEXT("Root"), nullptr)), FString(TEXT("No Widget"))) << Description;
	}
}

TEST(VelmoraGenerator, FileThatDoesNotParseShowsTheReason)
{
	const FTempProject Project;
	const FString Path = Project.Write(TEXT("Tool.json"), "{ nonsense");

	EXPECT_EQ(ErrorTextOf(GenerateWidgetFromFile(Path, TEXT("Root"), nullptr)),
		TEXT("Deserialize File ") + Path + TEXT(" failed, check: '\\' "));
	EXPECT_EQ(ErrorTextOf(GenerateWidgetFromFile(TEXT("/nowhere.json"), TEXT("Root"), nullptr)),
		FString(TEXT("Json File: /nowhere.json is Not exists")));
}

TEST(VelmoraGenerator, ErrorTextStandsFourUnitsFromTheEdge)
{
	const FChildRect Rect = ArrangeChild(MakeErrorWidget(TEXT("No Widget")), FVector2D(200.0, 100.0));

	EXPECT_EQ(Rect.Position, FVector2D(4.0, 4.0));
	EXPECT_EQ(Rect.Size, FVector2D(192.0, 92.0));
}

TEST(VelmoraGenerator, RootWhoseFirstKeyIsNoWidgetIsAnEmptyBorder)
{
	EXPECT_EQ(GenerateOutline(R"({ "Root": { "Aka": "root", "SBox": {} } })"), FString(TEXT("SBorder")));
}

TEST(VelmoraGenerator, SecondWidgetOfTheRootIsIgnoredWithoutAMessage)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(GenerateOutline(R"({ "Root": { "SBox": {}, "SBorder": { "Nonsense": 1 } } })"), FString(TEXT("SBox")));

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(VelmoraGenerator, SlotTakesItsFirstWidgetAndLosesTheSecond)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SVerticalBox": { "Slots": [
		{ "SBox": { "Content": { "SBorder": {} } }, "STextBlock": { "Nonsense": 1 } } ] } })");

	EXPECT_EQ(Outline(Tree), FString(TEXT("SVerticalBox[SBox[SBorder]]")));
	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Warning: \t\t\tNot Supported KeyName: Nonsense @ STextBlock")}));
}

TEST(VelmoraGenerator, SlotWithoutAWidgetOffersItsPaddingToThePanel)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SVerticalBox": { "Slots": [ { "Padding": [1, 2, 3] } ] } })");

	EXPECT_EQ(Outline(Tree), FString(TEXT("SVerticalBox")));
	const FString Error = TEXT("ParsePaddingValues Error Array Size: 3");
	EXPECT_EQ(Log.Errors(), FLines({Error, Error}));
	EXPECT_EQ(Log.Warnings(), FLines());
}

TEST(VelmoraGenerator, ContentTakesTwoWidgetsAndNeverSeesTheThird)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SButton": { "Content": {
		"SBorder": { "Nonsense": 1 }, "SBox": {}, "SCheckBox": { "Nonsense": 1 } } } })");

	EXPECT_EQ(Outline(Tree), FString(TEXT("SButton[SBox]")));
	EXPECT_EQ(Log.Warnings(), FLines({TEXT("\t\t\tNot Supported KeyName: Nonsense @ SBorder")}));
}

TEST(VelmoraGenerator, ContentFieldThatIsNoWidgetIsReportedAndCounts)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SBox": { "Content": { "Aka": "a", "ToolTipText": "b", "SBorder": {} } } })");

	EXPECT_EQ(Outline(Tree), FString(TEXT("SBox")));
	const FString Warning = TEXT("\tAdd Behavior Error, Parent == ContentWidget. Make sure \"Content\" has only one child. "
								 "KeyName: Content  parent: SBox, path: /SBox/Content");
	EXPECT_EQ(Log.Warnings(), FLines({Warning, Warning}));
}

TEST(VelmoraGenerator, ContentInsideASlotIsSkipped)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree =
		BuildTree(R"({ "SVerticalBox": { "Slots": [ { "Content": { "SBox": {}, "SBorder": {} } } ] } })");

	EXPECT_EQ(Outline(Tree), FString(TEXT("SVerticalBox")));
	const FString Line = TEXT("Velmora: Log: \t\tSkip Content, KeyName: Content  parent: SVerticalBox");
	EXPECT_EQ(Log.Lines(), FLines({Line, Line}));
}

TEST(VelmoraGenerator, ContentIsTakenByThePathAndNotByTheWidget)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SBorder": { "Slots": [ { "Content": { "SBox": {} } } ] } })")), FString(TEXT("SBorder")));

	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Log: \t\tSkip Content, KeyName: Content  parent: SBorder")}));
}

TEST(VelmoraGenerator, ContentThatIsNoObjectIsALogLine)
{
	const FLogCapture Log(TEXT("Velmora"));

	BuildTree(R"({ "SBox": { "Content": [ { "SBorder": {} } ] } })");

	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Log: \tIsBehavior Should be object Type, KeyName: Content  parent: SBox")}));
}

TEST(VelmoraGenerator, ContentOfADropTargetIsLeftToItsBuilderWithoutAWord)
{
	const FLogCapture Log(TEXT("Velmora"));
	const TSharedRef<SWidget> Target = SNew(SDropTarget);

	EXPECT_EQ(Build(TEXT("Content"), JsonValue(R"({ "SBox": {} })"), Target, 1, TEXT("/SDropTarget"), nullptr), Target);

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(VelmoraGenerator, UnknownKeyOfAComboBoxDrawsNoWarning)
{
	const FLogCapture Log(TEXT("Velmora"));

	Build(TEXT("Nonsense"), JsonValue("1"), SNew(SComboBox), 1, TEXT("/SComboBox"), nullptr);
	Build(TEXT("Margin"), JsonValue("1"), SNew(SComboBox), 1, TEXT("/SComboBox"), nullptr);

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(VelmoraGenerator, StructureKeysMindCaseAndTheOthersDoNot)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "sbox": { "aka": "Box", "content": { "SBorder": {} }, "slots": [] } })");

	EXPECT_EQ(Outline(Tree), FString(TEXT("SBox")));
	const TSharedPtr<FTagMetaData> Tag = Tree->GetMetaData<FTagMetaData>();
	ASSERT_TRUE(Tag.IsValid());
	EXPECT_EQ(Tag->Tag, FName("Box"));
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Warning: \tNot Supported KeyName: content @ SBox"),
			TEXT("Velmora: Warning: \tNot Supported KeyName: slots @ SBox")}));
}

TEST(VelmoraGenerator, SlotsOfAWrongTypeLeaveTheWidgetEmpty)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SVerticalBox": { "Slots": { "SBox": {} } } })")), FString(TEXT("SVerticalBox")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SBorder": { "Slots": "SBox" } })")), FString(TEXT("SBorder")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SVerticalBox": { "Slots": [ "SBox", { "SBox": {} } ] } })")),
		FString(TEXT("SVerticalBox[SBox]")));

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Log: \tSlots Should be Array Type, KeyName: Slots  parent: SVerticalBox"),
			TEXT("Velmora: Log: \tSlots Should be Array Type, KeyName: Slots  parent: SBorder"),
			TEXT("Velmora: Log: \tSlots Element should be Object Type, KeyName: Slots  parent: SVerticalBox")}));
}

TEST(VelmoraGenerator, PathSpellsTypesAsSlateDoes)
{
	const FLogCapture Log(TEXT("Velmora"));

	BuildTree(R"({ "SBOX": { "Content": { "sborder": { "Aka": 1 } } } })");

	EXPECT_EQ(Log.Errors(), FLines({TEXT("IsID: Aka @Path /SBox/Content/SBorder")}));
}

TEST(VelmoraGenerator, SkippedSlotsAreCountedInThePath)
{
	const FLogCapture Log(TEXT("Velmora"));

	BuildTree(R"({ "SVerticalBox": { "Slots": [ 5, { "SBox": { "Aka": 1 } } ] } })");

	EXPECT_EQ(Log.Errors(), FLines({TEXT("IsID: Aka @Path /SVerticalBox/Slots_1/SBox")}));
}

TEST(VelmoraGenerator, SpinBoxOrTrailWithoutATypeIsNothingWithoutAMessage)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SSpinBox": { "Value": 1 } })")), FString(TEXT("SBorder")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SBreadcrumbTrail": {} })")), FString(TEXT("SBorder")));

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(VelmoraGenerator, SpinBoxOrTrailOfAnUnknownTypeWarns)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SSpinBox": { "Type": "Double" } })")), FString(TEXT("SBorder")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SSpinBox": { "Type": [] } })")), FString(TEXT("SBorder")));
	EXPECT_EQ(Outline(BuildTree(R"({ "SBox": { "SBreadcrumbTrail": { "Type": "Float" } } })")), FString(TEXT("SBox")));

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Warning: SpinBox of type: Double not implement"),
			TEXT("Velmora: Warning: SpinBox of type:  not implement"),
			TEXT("Velmora: Warning: \tSpinBox of type: float not implement")}))
		<< "a trail's type is named in small letters";
}

TEST(VelmoraGenerator, HeaderRowAsAnOrdinaryChildIsNothingWithoutAMessage)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SBox": { "SHeaderRow": {} } })")), FString(TEXT("SBox")));

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(VelmoraGenerator, EveryWidgetTypeIsBuiltUnderItsNameOrIsAnError)
{
	const TSet<FString> Buildable = {TEXT("SBox"), TEXT("SBorder"), TEXT("SButton"), TEXT("SScrollBox"), TEXT("SVerticalBox"),
		TEXT("SHorizontalBox"), TEXT("SCheckBox"), TEXT("STextBlock"), TEXT("SEditableTextBox"),
		TEXT("SMultiLineEditableTextBox")};
	for (const FString& Type : WidgetTypes)
	{
		const FLogCapture Log(TEXT("Velmora"));
		const FString Root = TEXT("{ \"SBox\": { \"Content\": { \"") + Type + TEXT("\": { \"Type\": \"Integer\" } } } }");

		const FString Tree = Outline(BuildTree(TCHAR_TO_UTF8(*Root))) + TEXT("[");

		const bool bIsBuilt = Buildable.Contains(Type);
		EXPECT_EQ(Tree.StartsWith(TEXT("SBox[") + Type), bIsBuilt) << TCHAR_TO_UTF8(*Tree);
		EXPECT_EQ(Tree == TEXT("SBox["), !bIsBuilt) << TCHAR_TO_UTF8(*Tree);
		const FString Error = TEXT("\t\tSlate ") + Type + TEXT(" 's Value Type not implement");
		EXPECT_EQ(Log.Errors(), bIsBuilt || Type == TEXT("SHeaderRow") ? FLines() : FLines({Error}));
	}
}

TEST(VelmoraGenerator, WidgetThatIsNoObjectWarns)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SBox": 5 })")), FString(TEXT("SBorder")));

	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Warning: Slate SBox 's Value Type should be EJson::Object")}));
}

TEST(VelmoraGenerator, WidgetDirectlyInAWidgetIsBuiltAndLost)
{
	const FLogCapture Log(TEXT("Velmora"));

	EXPECT_EQ(Outline(BuildTree(R"({ "SBox": { "SBorder": { "Nonsense": 1 } } })")), FString(TEXT("SBox")));

	EXPECT_EQ(Log.Warnings(), FLines({TEXT("\t\tNot Supported KeyName: Nonsense @ SBorder")}));
}

TEST(VelmoraGenerator, AkaInsideASlotNamesThePanel)
{
	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SVerticalBox": { "Slots": [ { "Aka": "panel", "SBox": {} } ] } })");

	ASSERT_TRUE(Tree->GetMetaData<FTagMetaData>().IsValid());
	EXPECT_EQ(Tree->GetMetaData<FTagMetaData>()->Tag, FName("panel"));
	EXPECT_FALSE(ChildOf(Tree)->GetMetaData<FTagMetaData>().IsValid());
}

TEST(VelmoraGenerator, AkaRecordsTheWidgetWithItsPathInTheDataObjectOfTheTool)
{
	const FTempProject Project;
	const FString Path = Project.Write(TEXT("Tool.json"), R"({ "Root": { "SVerticalBox": { "Aka": "Box", "Slots": [
		{ "SBox": { "Aka": "First" } }, { "SBorder": { "aka": "Second" } } ] } } })");
	UVelmoraData* Data = NewObject<UVelmoraData>();

	const TSharedRef<SVelmoraWidget> Tool = SNew(SVelmoraWidget).JsonPath(Path).DataObj(Data);

	const TSharedRef<SWidget> Box = ChildOf(Tool);
	EXPECT_EQ(Data->NamedWidget.FindRef("Box"), Box);
	EXPECT_EQ(Data->NamedWidget.FindRef("First"), ChildOf(Box, 0));
	EXPECT_EQ(Data->NamedWidget.FindRef("Second"), ChildOf(Box, 1));
	EXPECT_EQ(Data->NamedWidgetPaths.FindRef("Box"), FString(TEXT("/SVerticalBox")));
	EXPECT_EQ(Data->NamedWidgetPaths.FindRef("Second"), FString(TEXT("/SVerticalBox/Slots_1/SBorder")));
}

TEST(VelmoraGenerator, AkaThatIsNoStringIsAnError)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SBox": { "Aka": 5 } })");

	EXPECT_FALSE(Tree->GetMetaData<FTagMetaData>().IsValid());
	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Error: IsID: Aka @Path /SBox")}));
}

TEST(VelmoraGenerator, AkaThatIsNullIsAnErrorToo)
{
	const FLogCapture Log(TEXT("Velmora"));

	const TSharedRef<SWidget> Tree = BuildTree(R"({ "SBox": { "Aka": null } })");

	EXPECT_FALSE(Tree->GetMetaData<FTagMetaData>().IsValid());
	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Error: IsID: Aka @Path /SBox")}));
}

TEST(VelmoraGenerator, EmptyAkaIsTheNameNone)
{
	const FTempProject Project;
	const FString Path = Project.Write(TEXT("Tool.json"), R"({ "Root": { "SBox": { "Aka": "" } } })");
	UVelmoraData* Data = NewObject<UVelmoraData>();

	const TSharedRef<SVelmoraWidget> Tool = SNew(SVelmoraWidget).JsonPath(Path).DataObj(Data);

	EXPECT_EQ(Data->NamedWidget.FindRef(NAME_None), ChildOf(Tool));
}

TEST(VelmoraGenerator, AkaThatIsTooLongForANameIsReportedAndGivesNone)
{
	const FLogCapture Log(TEXT("PythonKX"));
	const FString Json = TEXT("{ \"SBox\": { \"Aka\": \"") + FString::ChrN(NAME_SIZE, TEXT('a')) + TEXT("\" } }");

	const TSharedRef<SWidget> Tree = BuildTree(TCHAR_TO_UTF8(*Json));

	ASSERT_TRUE(Tree->GetMetaData<FTagMetaData>().IsValid());
	EXPECT_EQ(Tree->GetMetaData<FTagMetaData>()->Tag, NAME_None);
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("PythonKX: Error: A name has at most 1023 characters, found 1024: \"") + FString::ChrN(64, TEXT('a')) +
			TEXT("...\"")}));
}

TEST(VelmoraGenerator, NullValuesDoNothing)
{
	const FLogCapture Log(TEXT("Velmora"));
	const TSharedRef<SWidget> Parent = SNew(SBorder);

	for (const TCHAR* Key : {TEXT("Aka"), TEXT("Slots"), TEXT("Content")})
	{
		EXPECT_EQ(Build(Key, nullptr, Parent, 0, TEXT("/SBorder"), nullptr), Parent);
	}

	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(VelmoraGenerator, DetailedLogTellsTheWalk)
{
	const FLogCapture Log(TEXT("Velmora"));
	const FDetailedLog Detailed;

	BuildTree(R"({ "SVerticalBox": { "Slots": [ { "SBox": {} }, { "AutoHeight": true, "Columns": 1 } ] } })");

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Log: Build call FieldName: SVerticalBox  parent: SBorder   : /"),
			TEXT("Velmora: Log: \tBuild call FieldName: Slots  parent: SVerticalBox   : /SVerticalBox"),
			TEXT("Velmora: Log: \tIsSlots: Slots"),
			TEXT("Velmora: Log: \t\tBuild call FieldName: SBox  parent: SVerticalBox   : /SVerticalBox/Slots_0"),
			TEXT("Velmora: Log: \tAddSlot: SBox -> SVerticalBox"),
			TEXT("Velmora: Log: \t\tBuild call FieldName: AutoHeight  parent: SVerticalBox   : /SVerticalBox/Slots_1"),
			TEXT("Velmora: Log: Decorate: AutoHeight"),
			TEXT("Velmora: Log: InbornDecorate: AutoHeight @ SVerticalBox regard as handled.."),
			TEXT("Velmora: Log: \t\tBuild call FieldName: Columns  parent: SVerticalBox   : /SVerticalBox/Slots_1"),
			TEXT("Velmora: Log: InbornDecorate: Columns @ SVerticalBox regard as handled..")}));
}

TEST(VelmoraGenerator, IndentIsOneTabPerLevel)
{
	EXPECT_EQ(GetIndent(-1), FString());
	EXPECT_EQ(GetIndent(0), FString());
	EXPECT_EQ(GetIndent(3), FString(TEXT("\t\t\t")));
}

TEST(VelmoraGenerator, ThousandWidgetsWithinEachOtherAreBuiltAndDeeperOnesAreOneError)
{
	constexpr int32 NumLevels = 1200;
	FString Root;
	for (int32 Level = 0; Level < NumLevels; ++Level)
	{
		Root += TEXT("{ \"SVerticalBox\": { \"Slots\": [ ");
	}
	Root += TEXT("{ \"SBox\": {} }, { \"SBox\": {} }");
	for (int32 Level = 0; Level < NumLevels; ++Level)
	{
		Root += TEXT(" ] } }");
	}
	const FLogCapture Log(TEXT("Velmora"));
	const FTempProject Project;
	const FString Path = Project.Write(TEXT("Tool.json"), TEXT("{ \"Root\": ") + Root + TEXT("}"));
	const TSharedRef<SVelmoraWidget> Tool = SNew(SVelmoraWidget).JsonPath(Path);

	TSharedRef<SWidget> Widget = ChildOf(Tool);
	int32 NumNested = 1;
	while (Widget->GetChildren()->Num() > 0)
	{
		Widget = ChildOf(Widget);
		++NumNested;
	}
	EXPECT_EQ(NumNested, 1000);
	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Error: ") + Path +
			TEXT(": a tool has at most 1000 widgets within each other, what lies deeper is left out")}));
}

TEST(VelmoraGenerator, AnotherRootKeyIsBuiltFromItsOwnObject)
{
	const FTempProject Project;
	const FString Path = Project.Write(TEXT("Tool.json"), R"({ "Root": { "SBox": {} }, "Other": { "SBorder": {} } })");

	EXPECT_EQ(Outline(GenerateWidgetFromFile(Path, TEXT("Other"), nullptr)), FString(TEXT("SBorder")));
	EXPECT_EQ(ErrorTextOf(GenerateWidgetFromFile(Path, TEXT("Third"), nullptr)), FString(TEXT("No Widget")));
}
