#include "HAL/IConsoleManager.h"

#include <gtest/gtest.h>

#include "LogCapture.h"

namespace
{
IConsoleManager& Console()
{
	return IConsoleManager::Get();
}

/** What the console answers to a line. */
TArray<FString> Answer(const TCHAR* Input)
{
	FLogCapture Device;
	Console().ProcessUserConsoleInput(Input, Device);
	return Device.Lines();
}
}

TEST(ConsoleManager, VariableIsFoundInAnyCaseAndAnUnknownNameGivesNull)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("Test.Switch"), -1, TEXT("Test.Switch"));
	EXPECT_EQ(Console().FindConsoleVariable(TEXT("test.SWITCH")), Variable.AsVariable());
	EXPECT_EQ(Console().FindConsoleVariable(TEXT("Test.Nothing")), nullptr);
	EXPECT_EQ(Variable->GetInt(), -1);
	EXPECT_EQ(FString(Variable->GetHelp()), FString(TEXT("Test.Switch")));
}

TEST(ConsoleManager, NameAlonePrintsAndNameWithValueSets)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("Test.Number"), 3, TEXT("A number"));
	EXPECT_EQ(Answer(TEXT("test.number")), TArray<FString>({TEXT("None: Log: test.number = \"3\"      LastSetBy: Constructor")}));
	EXPECT_EQ(Answer(TEXT("Test.Number 12")), TArray<FString>({TEXT("None: Log: Test.Number = \"12\"")}));
	EXPECT_EQ(Variable.GetValueOnGameThread(), 12);
	EXPECT_EQ(Answer(TEXT("Test.Number ?")), TArray<FString>({TEXT("None: Log: HELP for 'Test.Number':\nA number")}));
}

TEST(ConsoleManager, UnknownWordIsLeftToOthers)
{
	FLogCapture Device;
	EXPECT_FALSE(Console().ProcessUserConsoleInput(TEXT("Test.Nothing 1"), Device));
	EXPECT_FALSE(Console().ProcessUserConsoleInput(TEXT("  "), Device));
	EXPECT_EQ(Device.Lines(), TArray<FString>());
}

TEST(ConsoleManager, ReadingConvertsBetweenKinds)
{
	const TAutoConsoleVariable<float> Fraction(TEXT("Test.Fraction"), 2.75f, TEXT(""));
	EXPECT_EQ(Fraction->GetInt(), 2);
	EXPECT_TRUE(Fraction->GetBool());
	EXPECT_EQ(Fraction->GetString(), FString(TEXT("2.75")));

	const TAutoConsoleVariable<FString> Text(TEXT("Test.Text"), TEXT("12.5 mm"), TEXT(""));
	EXPECT_EQ(Text->GetInt(), 12);
	EXPECT_EQ(Text->GetFloat(), 12.5f);

	const TAutoConsoleVariable<bool> Flag(TEXT("Test.Flag"), true, TEXT(""));
	EXPECT_EQ(Flag->GetInt(), 1);
	EXPECT_EQ(Flag->GetString(), FString(TEXT("true")));
}

TEST(ConsoleManager, FloatSetFromCodeKeepsItsValue)
{
	const TAutoConsoleVariable<float> Variable(TEXT("Test.Delay"), 0.05f, TEXT(""));
	Variable->Set(0.1f);
	EXPECT_EQ(Variable.GetValueOnGameThread(), 0.1f);
}

TEST(ConsoleManager, TextKeepsItsBlanks)
{
	const TAutoConsoleVariable<FString> Variable(TEXT("Test.Title"), TEXT(""), TEXT(""));
	Answer(TEXT("Test.Title My first tool"));
	EXPECT_EQ(Variable.GetValueOnGameThread(), FString(TEXT("My first tool")));
}

TEST(ConsoleManager, WordsForTrueSetANumberToOne)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("Test.Bit"), 0, TEXT(""));
	Answer(TEXT("Test.Bit true"));
	EXPECT_EQ(Variable.GetValueOnGameThread(), 1);
}

TEST(ConsoleManager, CodeDoesNotOverwriteWhatTheUserSet)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("Test.Priority"), 0, TEXT(""));
	Answer(TEXT("Test.Priority 5"));
	const FLogCapture Log(TEXT("LogConsoleManager"));
	Variable->Set(7);
	EXPECT_EQ(Variable.GetValueOnGameThread(), 5);
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("Setting the console variable 'Test.Priority' with 'SetByCode' was ignored as it is lower priority "
							  "than the previous 'SetByConsole'. Value remains '5'")}));
}

TEST(ConsoleManager, ReadOnlyVariableIsNotSetByTheUser)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("Test.Fixed"), 1, TEXT(""), ECVF_ReadOnly);
	EXPECT_EQ(Answer(TEXT("Test.Fixed 2")), TArray<FString>({TEXT("None: Error: Error: Test.Fixed is read only!")}));
	EXPECT_EQ(Variable.GetValueOnGameThread(), 1);
}

TEST(ConsoleManager, RefVariableChangesTheCallersValue)
{
	int32 Value = 4;
	IConsoleVariable* const Variable = Console().RegisterConsoleVariableRef(TEXT("Test.Ref"), Value, TEXT(""));
	EXPECT_EQ(Variable->GetInt(), 4);
	Answer(TEXT("Test.Ref 9"));
	EXPECT_EQ(Value, 9);
	Console().UnregisterConsoleObject(Variable);
	EXPECT_EQ(Console().FindConsoleVariable(TEXT("Test.Ref")), nullptr);
}

TEST(ConsoleManager, NameRegisteredTwiceKeepsItsVariable)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("Test.Twice"), 1, TEXT(""));
	EXPECT_EQ(Console().RegisterConsoleVariable(TEXT("Test.Twice"), 2, TEXT("")), Variable.AsVariable());
	EXPECT_EQ(Variable.GetValueOnGameThread(), 1);
}

TEST(ConsoleManager, CommandGetsItsWordsAndTheDevice)
{
	const FAutoConsoleCommand Command(TEXT("Test.Echo"), TEXT("Says its arguments"),
		FConsoleCommandWithArgsAndOutputDeviceDelegate::CreateLambda([](const TArray<FString>& Args, FOutputDevice& Ar)
			{ Ar.Logf(TEXT("%d: %s"), Args.Num(), *FString::Join(Args, TEXT("|"))); }));
	EXPECT_EQ(Answer(TEXT("test.echo one \"two three\"")), TArray<FString>({TEXT("None: Log: 2: one|two three")}));
	EXPECT_EQ(Console().FindConsoleVariable(TEXT("Test.Echo")), nullptr);
	EXPECT_NE(Console().FindConsoleObject(TEXT("Test.Echo")), nullptr);
}

TEST(ConsoleManager, ObjectsAreListedByTheBeginningOfTheirName)
{
	const TAutoConsoleVariable<int32> First(TEXT("TestList.A"), 1, TEXT(""));
	const TAutoConsoleVariable<int32> Second(TEXT("TestList.B"), 1, TEXT(""));
	TArray<FString> Names;
	Console().ForEachConsoleObjectThatStartsWith(
		[&Names](const TCHAR* Name, IConsoleObject*) { Names.Add(Name); }, TEXT("testlist."));
	Names.Sort();
	EXPECT_EQ(Names, TArray<FString>({TEXT("TestList.A"), TEXT("TestList.B")}));
}
