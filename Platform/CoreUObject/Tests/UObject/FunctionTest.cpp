#include <gtest/gtest.h>

#include "LogCapture.h"
#include "ReflectionTestTypes.h"
#include "UObject/ParameterDefaults.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

namespace
{
UFunction* Find(const TCHAR* Name)
{
	return UTestObject::StaticClass()->FindFunctionByName(Name);
}

EPropertyFlags FlagsOf(const TCHAR* Function, const TCHAR* Parameter)
{
	return Find(Function)->FindPropertyByName(Parameter)->GetPropertyFlags() & CPF_ParmFlags;
}

/** Collects the complaints of a call. */
class FComplaints final : public FOutputDevice
{
public:
	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override { Lines.Add(V); }
	TArray<FString> Lines;
};
}

TEST(Function, FlagsTellHowItWasDeclared)
{
	EXPECT_EQ(Find(TEXT("Add"))->FunctionFlags,
		FUNC_BlueprintCallable | FUNC_BlueprintPure | FUNC_Native | FUNC_Public | FUNC_Final | FUNC_Static);
	EXPECT_EQ(Find(TEXT("GetLabel"))->FunctionFlags,
		FUNC_BlueprintCallable | FUNC_Native | FUNC_Public | FUNC_Final | FUNC_Const | FUNC_HasOutParms);
	EXPECT_EQ(Find(TEXT("GetWeights"))->FunctionFlags, FUNC_BlueprintCallable | FUNC_Native | FUNC_Public);
	EXPECT_EQ(
		Find(TEXT("GetHidden"))->FunctionFlags, FUNC_BlueprintCallable | FUNC_Native | FUNC_Private | FUNC_Final | FUNC_Static);
	EXPECT_TRUE(Find(TEXT("Remember"))->HasAnyFunctionFlags(FUNC_Exec));
}

TEST(Function, ParameterFlagsTellInOutAndReference)
{
	EXPECT_EQ(FlagsOf(TEXT("GetLabel"), TEXT("Which")), CPF_Parm);
	EXPECT_EQ(FlagsOf(TEXT("GetLabel"), TEXT("OutLabel")), CPF_Parm | CPF_OutParm);
	EXPECT_EQ(FlagsOf(TEXT("GetLabel"), TEXT("ReturnValue")), CPF_Parm | CPF_OutParm | CPF_ReturnParm);
	EXPECT_EQ(FlagsOf(TEXT("Describe"), TEXT("Text")), CPF_Parm | CPF_OutParm | CPF_ConstParm | CPF_ReferenceParm);
	EXPECT_EQ(FlagsOf(TEXT("Grow"), TEXT("Numbers")), CPF_Parm | CPF_OutParm | CPF_ReferenceParm);
}

TEST(Function, ToolTipAndKeywordsComeFromTheHeader)
{
	EXPECT_EQ(Find(TEXT("Add"))->GetMetaData(TEXT("ToolTip")), TEXT("Adds up.\n\n@param B  Ten, unless given."));
	EXPECT_EQ(Find(TEXT("Add"))->GetMetaData(TEXT("Keywords")), TEXT("sum"));
	EXPECT_EQ(Find(TEXT("Add"))->GetMetaData(TEXT("Category")), TEXT("Test"));
}

TEST(Function, CppDefaultsAreTextsInTheEnginesFormats)
{
	const UFunction* const Describe = Find(TEXT("Describe"));
	const auto Default = [Describe](const TCHAR* Parameter)
	{
		return Describe->GetMetaData(*(FString(TEXT("CPP_Default_")) + Parameter));
	};

	EXPECT_FALSE(Describe->HasMetaData(TEXT("CPP_Default_Text")));
	EXPECT_EQ(Default(TEXT("Name")), TEXT("None"));
	EXPECT_EQ(Default(TEXT("Scale")), TEXT("1.500000"));
	EXPECT_EQ(Default(TEXT("bLoud")), TEXT("true"));
	EXPECT_EQ(Default(TEXT("Size")), TEXT("(X=0.000,Y=0.000)"));
	EXPECT_EQ(Default(TEXT("Colour")), TEXT("(R=1.000000,G=1.000000,B=1.000000,A=1.000000)"));
	EXPECT_EQ(Default(TEXT("Where")), TEXT("1.000000,2.000000,3.000000"));
	EXPECT_EQ(Default(TEXT("Kind")), TEXT("Green"));
	EXPECT_EQ(Default(TEXT("Object")), TEXT("None"));
	EXPECT_EQ(Default(TEXT("End")), TEXT("!"));
}

TEST(Function, DefaultsAreReadBackIntoValues)
{
	const UFunction* const Describe = Find(TEXT("Describe"));
	FVector Where(9.0, 9.0, 9.0);
	FLinearColor Colour(0.0f, 0.0f, 0.0f, 0.0f);
	FString Text;

	EXPECT_TRUE(ImportParameterDefault(*Describe, *Describe->FindPropertyByName(TEXT("Where")), &Where));
	EXPECT_TRUE(ImportParameterDefault(*Describe, *Describe->FindPropertyByName(TEXT("Colour")), &Colour));
	EXPECT_FALSE(ImportParameterDefault(*Describe, *Describe->FindPropertyByName(TEXT("Text")), &Text));

	EXPECT_EQ(Where, FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(Colour, FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
}

TEST(Function, ProcessEventTakesOnePackedBlock)
{
	struct
	{
		FName Which;
		FString OutLabel;
		bool ReturnValue;
	} Parms = {TEXT("Known"), TEXT(""), false};
	UTestObject* const Object = NewObject<UTestObject>();
	Object->String = TEXT("label");

	Object->ProcessEvent(Object->FindFunctionChecked(TEXT("GetLabel")), &Parms);

	EXPECT_TRUE(Parms.ReturnValue);
	EXPECT_EQ(Parms.OutLabel, TEXT("label"));
	EXPECT_EQ(Find(TEXT("GetLabel"))->ParmsSize, sizeof(Parms));
	EXPECT_EQ(Find(TEXT("GetLabel"))->NumParms, 3);
	EXPECT_EQ(Find(TEXT("GetLabel"))->GetReturnProperty()->GetName(), TEXT("ReturnValue"));
}

TEST(Function, StaticFunctionsRunOnTheDefaultObject)
{
	struct
	{
		TArray<int32> Numbers;
		int32 By;
	} Parms = {{1, 2}, 5};

	UTestObject::StaticClass()->GetDefaultObject()->ProcessEvent(Find(TEXT("Grow")), &Parms);

	EXPECT_EQ(Parms.Numbers, TArray<int32>({6, 7, 5}));
}

TEST(CallFunctionByName, SplitsAtBlanksAndKeepsQuotedTextTogether)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FComplaints Complaints;

	EXPECT_TRUE(Object->CallFunctionByNameWithArguments(TEXT("Remember \"two words\" more"), Complaints, nullptr));

	EXPECT_EQ(Object->String, TEXT("two words"));
}

TEST(CallFunctionByName, OnlyExecFunctionsUnlessForced)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FComplaints Complaints;

	EXPECT_FALSE(Object->CallFunctionByNameWithArguments(TEXT("Add 1 2"), Complaints, nullptr));
	EXPECT_TRUE(Object->CallFunctionByNameWithArguments(TEXT("Add 1"), Complaints, nullptr, true));
	EXPECT_FALSE(Object->CallFunctionByNameWithArguments(TEXT("NoSuchFunction"), Complaints, nullptr, true));
	EXPECT_FALSE(Object->CallFunctionByNameWithArguments(TEXT(""), Complaints, nullptr, true));
	EXPECT_EQ(Complaints.Lines, TArray<FString>());
}

TEST(CallFunctionByName, ComplainsAboutAnArgumentOfTheWrongType)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FComplaints Complaints;

	EXPECT_FALSE(Object->CallFunctionByNameWithArguments(TEXT("Add one"), Complaints, nullptr, true));

	EXPECT_EQ(Complaints.Lines,
		TArray<FString>(
			{TEXT("ImportText (A): expected a value of type int32, found 'one'"), TEXT("'Add': Bad or missing property 'A'")}));
}
