#include <gtest/gtest.h>

#include "ReflectionTestTypes.h"
#include "UObject/Stack.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
TArray<FString> PropertyNames(
	const UStruct* Struct, EFieldIteratorFlags::SuperClassFlags SuperFlags = EFieldIteratorFlags::IncludeSuper)
{
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(Struct, SuperFlags); It; ++It)
	{
		Names.Add(It->GetName());
	}
	return Names;
}

/** A class with a variable of each kind that an editor can add, as a blueprint makes it. */
UClass* MakeDynamicClass(const TCHAR* Name)
{
	UClass* const Class = NewObject<UClass>(GetTransientPackage(), Name, RF_Public);
	Class->SetSuperStruct(UTestObject::StaticClass());
	Class->ClassFlags |= CLASS_CompiledFromBlueprint;
	FIntProperty* const Count = new FIntProperty(Class, TEXT("Count"));
	Count->SetPropertyFlags(CPF_Edit | CPF_BlueprintVisible);
	Class->AddCppProperty(Count);
	Class->AddCppProperty(new FStrProperty(Class, TEXT("Title")));
	FObjectProperty* const Reference = new FObjectProperty(Class, TEXT("Reference"));
	Class->AddCppProperty(Reference);
	FArrayProperty* const List = new FArrayProperty(Class, TEXT("List"));
	List->AddCppProperty(new FStrProperty(List, TEXT("List")));
	Class->AddCppProperty(List);
	FMapProperty* const Table = new FMapProperty(Class, TEXT("Table"));
	Table->AddCppProperty(new FNameProperty(Table, TEXT("Table")));
	Table->AddCppProperty(new FObjectProperty(Table, TEXT("Table")));
	Class->AddCppProperty(Table);
	Class->Bind();
	Class->StaticLink();
	return Class;
}
}

TEST(Class, PropertiesComeInDeclaredOrderThenTheParents)
{
	const TArray<FString> Own = PropertyNames(UTestChild::StaticClass(), EFieldIteratorFlags::ExcludeSuper);
	const TArray<FString> All = PropertyNames(UTestChild::StaticClass());

	EXPECT_EQ(Own, TArray<FString>({TEXT("Own"), TEXT("Further"), TEXT("Old")}));
	EXPECT_EQ(All[2], TEXT("Old"));
	EXPECT_EQ(All[3], TEXT("bNative"));
	EXPECT_EQ(All.Last(), TEXT("Fixed"));
}

TEST(Class, DeprecatedPropertiesCanBeLeftOut)
{
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(
			 UTestChild::StaticClass(), EFieldIteratorFlags::ExcludeSuper, EFieldIteratorFlags::ExcludeDeprecated);
		 It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names, TArray<FString>({TEXT("Own"), TEXT("Further")}));
}

TEST(Class, IteratorsOfAKindSkipTheOthers)
{
	TArray<FString> Names;
	for (TFieldIterator<FBoolProperty> It(UTestObject::StaticClass()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names, TArray<FString>({TEXT("bNative"), TEXT("bFirst"), TEXT("bSecond")}));
}

TEST(Class, FunctionsComeInDeclaredOrder)
{
	TArray<FString> Names;
	for (TFieldIterator<UFunction> It(UTestChild::StaticClass()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names,
		TArray<FString>({TEXT("GetLabel"), TEXT("Add"), TEXT("Describe"), TEXT("Grow"), TEXT("Remember"), TEXT("GetWeights"),
			TEXT("GetHidden")}));
}

TEST(Class, MetadataAndToolTipComeFromTheHeader)
{
	const UClass* const Class = UTestObject::StaticClass();
	const FProperty* const Int32 = Class->FindPropertyByName(TEXT("Int32"));

	EXPECT_EQ(Class->GetMetaData(TEXT("ToolTip")), TEXT("One property of each kind.\n\nIts second paragraph."));
	EXPECT_TRUE(Class->GetBoolMetaData(TEXT("BlueprintType")));
	EXPECT_TRUE(Class->GetBoolMetaData(TEXT("IsBlueprintBase")));
	EXPECT_EQ(Class->GetMetaData(TEXT("Custom")), TEXT("Yes, \"quoted\""));
	EXPECT_EQ(Class->GetMetaData(TEXT("ModuleRelativePath")), TEXT("Tests/ReflectionTestTypes.h"));
	EXPECT_EQ(Int32->GetMetaData(TEXT("category")), TEXT("Test|Numbers"));
	EXPECT_EQ(Int32->GetMetaData(TEXT("ClampMin")), TEXT("0"));
	EXPECT_EQ(Int32->GetMetaData(TEXT("ToolTip")), TEXT("Counts."));
	EXPECT_FALSE(Int32->HasMetaData(TEXT("ClampMax")));
	EXPECT_EQ(Int32->GetMetaData(TEXT("ClampMax")), TEXT(""));
	EXPECT_TRUE(UTestChild::StaticClass()->GetBoolMetaDataHierarchical(TEXT("BlueprintType")));
}

TEST(Class, FlagsComeFromTheHeader)
{
	EXPECT_TRUE(UTestAbstract::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_FALSE(UTestObject::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_TRUE(UTestObject::StaticClass()->HasAllClassFlags(CLASS_Native | CLASS_Constructed));
	EXPECT_EQ(
		UTestObject::StaticClass()->FindPropertyByName(TEXT("bNative"))->GetPropertyFlags() & (CPF_Edit | CPF_BlueprintVisible),
		CPF_Edit | CPF_BlueprintVisible);
}

TEST(Class, DefaultObjectHasTheConstructorsValues)
{
	EXPECT_EQ(GetDefault<UTestChild>()->Int32, 77);
	EXPECT_EQ(GetDefault<UTestChild>()->Further, 2);
	EXPECT_EQ(UTestChild::StaticClass()->GetDefaultObject(), GetDefault<UTestChild>());
}

TEST(Class, PrefixesAreThoseOfCpp)
{
	EXPECT_EQ(FString(UTestObject::StaticClass()->GetPrefixCPP()), TEXT("U"));
	EXPECT_EQ(FTestPair::StaticStruct()->GetStructCPPName(), TEXT("FTestPair"));
}

TEST(Class, DerivedClassesAreFound)
{
	TArray<UClass*> Derived;
	GetDerivedClasses(UTestObject::StaticClass(), Derived);
	EXPECT_TRUE(Derived.Contains(UTestChild::StaticClass()));
	EXPECT_FALSE(Derived.Contains(UTestObject::StaticClass()));
}

TEST(DynamicClass, ObjectsHaveTheVariablesBehindTheNativePart)
{
	UClass* const Class = MakeDynamicClass(TEXT("DynamicA"));
	UTestObject* const Object = NewObject<UTestObject>(GetTransientPackage(), Class);
	const FIntProperty* const Count = FindFProperty<FIntProperty>(Class, TEXT("Count"));
	const FArrayProperty* const List = FindFProperty<FArrayProperty>(Class, TEXT("List"));

	EXPECT_GE(Count->GetOffset_ForInternal(), int32(sizeof(UTestObject)));
	EXPECT_EQ(Count->GetPropertyValue_InContainer(Object), 0);
	Count->SetPropertyValue_InContainer(Object, 12);
	EXPECT_EQ(Count->GetPropertyValue_InContainer(Object), 12);
	EXPECT_EQ(Object->Vector, FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(PropertyNames(Class)[0], TEXT("Count"));
	EXPECT_EQ(PropertyNames(Class)[5], TEXT("bNative"));
	EXPECT_EQ(List->GetCPPType(), TEXT("TArray<FString>"));
	EXPECT_EQ(Object->GetName(), TEXT("DynamicA_0"));
}

TEST(DynamicClass, ObjectsTakeTheDefaultsOfTheirClass)
{
	UClass* const Class = MakeDynamicClass(TEXT("DynamicB"));
	UTestObject* const Default = Class->GetDefaultObject<UTestObject>();
	FindFProperty<FStrProperty>(Class, TEXT("Title"))->SetPropertyValue_InContainer(Default, TEXT("From the class"));
	Default->Int32 = 5;

	UTestObject* const Object = NewObject<UTestObject>(GetTransientPackage(), Class);

	EXPECT_EQ(FindFProperty<FStrProperty>(Class, TEXT("Title"))->GetPropertyValue_InContainer(Object), TEXT("From the class"));
	EXPECT_EQ(Object->Int32, 5);
}

TEST(DynamicClass, ArraysAreLaidOutAsNativeOnes)
{
	UClass* const Class = MakeDynamicClass(TEXT("DynamicC"));
	UObject* const Object = NewObject<UObject>(GetTransientPackage(), Class);
	const FArrayProperty* const List = FindFProperty<FArrayProperty>(Class, TEXT("List"));
	TArray<FString>& Native = *List->ContainerPtrToValuePtr<TArray<FString>>(Object);

	FScriptArrayHelper Helper(List, &Native);
	Helper.AddValues(2);
	*reinterpret_cast<FString*>(Helper.GetRawPtr(1)) = TEXT("second");
	Native.Add(TEXT("third"));
	Helper.RemoveValues(0);

	EXPECT_EQ(Native, TArray<FString>({TEXT("second"), TEXT("third")}));
	EXPECT_EQ(Helper.Num(), 2);
}

TEST(DynamicClass, VariablesKeepObjectsAlive)
{
	UClass* const Class = MakeDynamicClass(TEXT("DynamicD"));
	UObject* const Object = NewObject<UObject>(GetTransientPackage(), Class);
	Object->AddToRoot();
	UObject* const Referred = NewObject<UTestObject>();
	UObject* const Mapped = NewObject<UTestObject>();
	FindFProperty<FObjectProperty>(Class, TEXT("Reference"))->SetObjectPropertyValue_InContainer(Object, Referred);
	const FMapProperty* const Table = FindFProperty<FMapProperty>(Class, TEXT("Table"));
	const FName Key(TEXT("Key"));
	FScriptMapHelper(Table, Table->ContainerPtrToValuePtr<void>(Object)).AddPair(&Key, &Mapped);
	const FWeakObjectPtr WeakReferred(Referred);
	const FWeakObjectPtr WeakMapped(Mapped);

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(WeakReferred.IsValid());
	EXPECT_TRUE(WeakMapped.IsValid());

	Object->RemoveFromRoot();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(WeakReferred.IsValid());
	EXPECT_FALSE(WeakMapped.IsValid());
}

TEST(DynamicFunction, RunsTheBodyThatItWasGiven)
{
	UClass* const Class = MakeDynamicClass(TEXT("DynamicE"));
	UFunction* const Function = NewObject<UFunction>(Class, TEXT("Twice"), RF_Public);
	FIntProperty* const Input = new FIntProperty(Function, TEXT("Input"));
	Input->SetPropertyFlags(CPF_Parm);
	Function->AddCppProperty(Input);
	FIntProperty* const Result = new FIntProperty(Function, TEXT("ReturnValue"));
	Result->SetPropertyFlags(CPF_Parm | CPF_OutParm | CPF_ReturnParm);
	Function->AddCppProperty(Result);
	Function->StaticLink();
	Function->SetNativeFunc(
		[](UObject* Context, FFrame& Stack)
		{
			int32* const Values = reinterpret_cast<int32*>(Stack.Locals);
			Values[1] = Values[0] * 2;
		});
	Class->AddFunctionToFunctionMap(Function, Function->GetFName());

	int32 Parms[2] = {21, 0};
	UObject* const Object = NewObject<UObject>(GetTransientPackage(), Class);
	Object->ProcessEvent(Object->FindFunctionChecked(TEXT("Twice")), Parms);

	EXPECT_EQ(Parms[1], 42);
	EXPECT_EQ(Function->NumParms, 2);
	EXPECT_EQ(Function->ParmsSize, 8);
	EXPECT_EQ(Function->ReturnValueOffset, 4);
	Class->RemoveFunctionFromFunctionMap(Function);
	EXPECT_EQ(Object->FindFunction(TEXT("Twice")), nullptr);
	EXPECT_NE(Object->FindFunction(TEXT("Add")), nullptr);
}

TEST(NativeStruct, NumbersThatCppLeavesUnsetAreForced)
{
	int64 Memory = 77;
	FTestForced::StaticStruct()->InitializeStruct(&Memory);
	EXPECT_EQ(Memory, 0);
	FTestUnforced::StaticStruct()->InitializeStruct(&Memory);
	EXPECT_EQ(Memory, 4);
}

TEST(DynamicStruct, MembersAreLaidOutAndCopied)
{
	UScriptStruct* const Struct = NewObject<UScriptStruct>(GetTransientPackage(), TEXT("Made"), RF_Public);
	Struct->AddCppProperty(new FByteProperty(Struct, TEXT("Small")));
	Struct->AddCppProperty(new FStrProperty(Struct, TEXT("Words")));
	Struct->StaticLink();
	const FStrProperty* const Words = FindFProperty<FStrProperty>(Struct, TEXT("Words"));
	EXPECT_EQ(Words->GetOffset_ForInternal(), 8);
	EXPECT_EQ(Struct->GetStructureSize(), 24);

	TArray<uint8> A;
	TArray<uint8> B;
	A.SetNumZeroed(Struct->GetStructureSize());
	B.SetNumZeroed(Struct->GetStructureSize());
	Struct->InitializeStruct(A.GetData());
	Struct->InitializeStruct(B.GetData());
	Words->SetPropertyValue_InContainer(A.GetData(), TEXT("copied"));
	EXPECT_FALSE(Struct->CompareScriptStruct(A.GetData(), B.GetData(), 0));
	Struct->CopyScriptStruct(B.GetData(), A.GetData());

	EXPECT_EQ(Words->GetPropertyValue_InContainer(B.GetData()), TEXT("copied"));
	EXPECT_TRUE(Struct->CompareScriptStruct(A.GetData(), B.GetData(), 0));
	Struct->ClearScriptStruct(B.GetData());
	EXPECT_EQ(Words->GetPropertyValue_InContainer(B.GetData()), TEXT(""));
	Struct->DestroyStruct(A.GetData());
	Struct->DestroyStruct(B.GetData());
}
