#include <gtest/gtest.h>

#include "LogCapture.h"
#include "ReflectionTestTypes.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const FProperty* Find(const TCHAR* Name)
{
	return UTestObject::StaticClass()->FindPropertyByName(Name);
}

FString ExportOf(UTestObject* Object, const TCHAR* Name)
{
	FString Text;
	Find(Name)->ExportTextItem(Text, Find(Name)->ContainerPtrToValuePtr<void>(Object), nullptr, nullptr, PPF_None);
	return Text;
}

bool Import(UTestObject* Object, const TCHAR* Name, const TCHAR* Text)
{
	return Find(Name)->ImportText(Text, Find(Name)->ContainerPtrToValuePtr<void>(Object), PPF_None, Object) != nullptr;
}
}

TEST(Property, KnowsItsTypeAsCppSpellsIt)
{
	EXPECT_EQ(Find(TEXT("Int32"))->GetCPPType(), TEXT("int32"));
	EXPECT_EQ(Find(TEXT("Double"))->GetCPPType(), TEXT("double"));
	EXPECT_EQ(Find(TEXT("bNative"))->GetCPPType(), TEXT("bool"));
	EXPECT_EQ(Find(TEXT("String"))->GetCPPType(), TEXT("FString"));
	EXPECT_EQ(Find(TEXT("Object"))->GetCPPType(), TEXT("UObject*"));
	EXPECT_EQ(Find(TEXT("Wrapped"))->GetCPPType(), TEXT("UTestObject*"));
	EXPECT_EQ(Find(TEXT("Class"))->GetCPPType(), TEXT("UClass*"));
	EXPECT_EQ(Find(TEXT("Vector"))->GetCPPType(), TEXT("FVector"));
	EXPECT_EQ(Find(TEXT("Weights"))->GetCPPType(), TEXT("TMap<FString,float>"));
	EXPECT_EQ(Find(TEXT("Pairs"))->GetClass()->GetName(), TEXT("ArrayProperty"));
	EXPECT_EQ(Find(TEXT("Int32"))->GetFullName(), TEXT("IntProperty /Script/CoreUObjectTests.TestObject:Int32"));
}

TEST(Property, CastsFollowTheKinds)
{
	EXPECT_NE(CastField<FIntProperty>(Find(TEXT("Int32"))), nullptr);
	EXPECT_NE(CastField<FNumericProperty>(Find(TEXT("Int32"))), nullptr);
	EXPECT_EQ(CastField<FFloatProperty>(Find(TEXT("Int32"))), nullptr);
	EXPECT_NE(CastField<FObjectProperty>(Find(TEXT("Class"))), nullptr);
	EXPECT_EQ(CastField<FObjectProperty>(Find(TEXT("Weak"))), nullptr);
	EXPECT_NE(CastField<FObjectPropertyBase>(Find(TEXT("Weak"))), nullptr);
	EXPECT_EQ(ExactCastField<FObjectProperty>(Find(TEXT("Class"))), nullptr);
	EXPECT_TRUE(Find(TEXT("Int32"))->GetClass()->HasAnyCastFlags(CASTCLASS_FIntProperty));
}

TEST(BoolProperty, KnowsTheBitOfABitField)
{
	const FBoolProperty* const First = FindFProperty<FBoolProperty>(UTestObject::StaticClass(), TEXT("bFirst"));
	const FBoolProperty* const Second = FindFProperty<FBoolProperty>(UTestObject::StaticClass(), TEXT("bSecond"));
	const FBoolProperty* const Native = FindFProperty<FBoolProperty>(UTestObject::StaticClass(), TEXT("bNative"));
	UTestObject* const Object = NewObject<UTestObject>();
	Second->SetPropertyValue_InContainer(Object, true);

	EXPECT_EQ(Native->GetFieldMask(), 0xff);
	EXPECT_EQ(First->GetFieldSize(), 4);
	EXPECT_EQ(First->GetFieldMask(), 1);
	EXPECT_EQ(Second->GetFieldMask(), 2);
	EXPECT_EQ(First->GetOffset_ForInternal(), Second->GetOffset_ForInternal());
	EXPECT_EQ(Object->bFirst, 0u);
	EXPECT_EQ(Object->bSecond, 1u);
	EXPECT_FALSE(First->GetPropertyValue_InContainer(Object));
	EXPECT_TRUE(Second->GetPropertyValue_InContainer(Object));
}

TEST(NumericProperty, ConvertsWithoutUndefinedBehaviour)
{
	UTestObject* const Object = NewObject<UTestObject>();
	const FNumericProperty* const Byte = FindFProperty<FNumericProperty>(UTestObject::StaticClass(), TEXT("Byte"));
	const FNumericProperty* const Float = FindFProperty<FNumericProperty>(UTestObject::StaticClass(), TEXT("Float"));

	Byte->SetIntPropertyValue(&Object->Byte, int64(257));
	EXPECT_EQ(Object->Byte, 1);
	Byte->SetFloatingPointPropertyValue(&Object->Byte, 1.0e300);
	EXPECT_EQ(Object->Byte, 255);
	Float->SetIntPropertyValue(&Object->Float, int64(3));
	EXPECT_EQ(Float->GetFloatingPointPropertyValue(&Object->Float), 3.0);
	EXPECT_TRUE(Float->IsFloatingPoint());
	EXPECT_TRUE(Byte->IsInteger());
	EXPECT_FALSE(Byte->SetNumericPropertyValueFromString(&Object->Byte, TEXT("256")));
	EXPECT_TRUE(Byte->SetNumericPropertyValueFromString(&Object->Byte, TEXT("12")));
	EXPECT_EQ(Object->Byte, 12);
}

TEST(ExportText, WritesTheEnginesForms)
{
	UTestObject* const Object = NewObject<UTestObject>(CreatePackage(TEXT("/Game/Export")), TEXT("Export"));
	Object->bNative = true;
	Object->Int32 = -5;
	Object->UInt64 = MAX_uint64;
	Object->Float = 0.25f;
	Object->String = TEXT("a \"b\", c");
	Object->Name = TEXT("Some Name");
	Object->Text = FText::FromString(TEXT("text"));
	Object->Colour = ETestColour::Green;
	Object->Shape = ETestShape::Square;
	Object->Object = Object;
	Object->Class = UTestObject::StaticClass();
	Object->Numbers = {1, 2};
	Object->Names = {TEXT("A"), TEXT("B")};
	Object->Weights.Add(TEXT("w"), 0.5f);

	EXPECT_EQ(ExportOf(Object, TEXT("bNative")), TEXT("True"));
	EXPECT_EQ(ExportOf(Object, TEXT("bFirst")), TEXT("False"));
	EXPECT_EQ(ExportOf(Object, TEXT("Int32")), TEXT("-5"));
	EXPECT_EQ(ExportOf(Object, TEXT("UInt64")), TEXT("18446744073709551615"));
	EXPECT_EQ(ExportOf(Object, TEXT("Float")), TEXT("0.250000"));
	EXPECT_EQ(ExportOf(Object, TEXT("String")), TEXT("a \"b\", c"));
	EXPECT_EQ(ExportOf(Object, TEXT("Name")), TEXT("Some Name"));
	EXPECT_EQ(ExportOf(Object, TEXT("Text")), TEXT("text"));
	EXPECT_EQ(ExportOf(Object, TEXT("Colour")), TEXT("Green"));
	EXPECT_EQ(ExportOf(Object, TEXT("Shape")), TEXT("Square"));
	EXPECT_EQ(ExportOf(Object, TEXT("Object")), TEXT("TestObject'/Game/Export.Export'"));
	EXPECT_EQ(ExportOf(Object, TEXT("Wrapped")), TEXT("None"));
	EXPECT_EQ(ExportOf(Object, TEXT("Class")), TEXT("Class'/Script/CoreUObjectTests.TestObject'"));
	EXPECT_EQ(ExportOf(Object, TEXT("Vector")), TEXT("(X=1.000000,Y=2.000000,Z=3.000000)"));
	EXPECT_EQ(ExportOf(Object, TEXT("Pair")), TEXT("(Number=3,Label=\"pair\",Object=None,Children=())"));
	EXPECT_EQ(ExportOf(Object, TEXT("Numbers")), TEXT("(1,2)"));
	EXPECT_EQ(ExportOf(Object, TEXT("Names")), TEXT("(\"A\",\"B\")"));
	EXPECT_EQ(ExportOf(Object, TEXT("Weights")), TEXT("((\"w\", 0.500000))"));
}

TEST(ExportText, AStructureLeavesOutWhatEqualsTheDefaults)
{
	FTestPair Pair;
	Pair.Label = TEXT("other");
	const FTestPair Default;
	FString Text;
	FTestPair::StaticStruct()->ExportText(Text, &Pair, &Default, nullptr, PPF_None, nullptr);

	EXPECT_EQ(Text, TEXT("(Label=\"other\")"));
}

TEST(ImportText, ReadsBackWhatExportWrote)
{
	UTestObject* const From = NewObject<UTestObject>(CreatePackage(TEXT("/Game/Import")), TEXT("Import"));
	From->bNative = true;
	From->bSecond = true;
	From->Int8 = -8;
	From->Int64 = MIN_int64;
	From->UInt32 = MAX_uint32;
	From->Double = -1.5;
	From->String = TEXT("line\nwith \"quotes\", commas (and) brackets");
	From->Colour = ETestColour::Secret;
	From->Shape = ETestShape::Square;
	From->Object = From;
	From->Subclass = UTestChild::StaticClass();
	From->Weak = From;
	From->Pair.Children.AddDefaulted(2);
	From->Pair.Children[1].Label = TEXT("a,b\"c\")");
	From->Pairs.AddDefaulted();
	From->Objects = {From, nullptr};
	From->ObjectSet.Add(From);
	From->Names = {TEXT("x"), TEXT("y z")};
	From->ObjectsByName.Add(TEXT("me"), From);
	From->Weights = {{TEXT("one"), 1.0f}, {TEXT("two,"), 2.0f}};
	UTestObject* const To = NewObject<UTestObject>();

	for (const FProperty* Property : TFieldRange<FProperty>(UTestObject::StaticClass()))
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			FString Text;
			Property->ExportText_InContainer(Index, Text, From, nullptr, nullptr, PPF_None);
			const TCHAR* const End = Property->ImportText(*Text, Property->ContainerPtrToValuePtr<void>(To, Index), PPF_None, To);
			ASSERT_NE(End, nullptr) << *FTCHARToUTF8(*Text).Get();
			EXPECT_EQ(FString(End), TEXT(""));
			EXPECT_TRUE(Property->Identical_InContainer(From, To, Index)) << FTCHARToUTF8(*Property->GetName()).Get();
		}
	}
	EXPECT_EQ(To->Pair.Children[1].Label, TEXT("a,b\"c\")"));
	EXPECT_EQ(To->Weights[TEXT("two,")], 2.0f);
}

TEST(ImportText, AStructureTakesOnlyTheMembersThatAreNamed)
{
	UTestObject* const Object = NewObject<UTestObject>();

	EXPECT_TRUE(Import(Object, TEXT("Vector"), TEXT("( Y = 7.5 )")));

	EXPECT_EQ(Object->Vector, FVector(1.0, 7.5, 3.0));
}

TEST(ImportText, AcceptsOtherSpellings)
{
	UTestObject* const Object = NewObject<UTestObject>();

	EXPECT_TRUE(Import(Object, TEXT("bNative"), TEXT("true")));
	EXPECT_TRUE(Object->bNative);
	EXPECT_TRUE(Import(Object, TEXT("bNative"), TEXT("0")));
	EXPECT_FALSE(Object->bNative);
	EXPECT_TRUE(Import(Object, TEXT("Colour"), TEXT("ETestColour::Green")));
	EXPECT_EQ(Object->Colour, ETestColour::Green);
	EXPECT_TRUE(Import(Object, TEXT("Class"), TEXT("/Script/CoreUObject.Object")));
	EXPECT_EQ(Object->Class, UObject::StaticClass());
	EXPECT_TRUE(Import(Object, TEXT("Class"), TEXT("Class'\"/Script/CoreUObjectTests.TestChild\"'")));
	EXPECT_EQ(Object->Class, UTestChild::StaticClass());
}

TEST(ImportText, RefusesWhatDoesNotFitWithAWarning)
{
	UTestObject* const Object = NewObject<UTestObject>();
	const FLogCapture Log(TEXT("LogProperty"));

	EXPECT_FALSE(Import(Object, TEXT("Int32"), TEXT("five")));
	EXPECT_FALSE(Import(Object, TEXT("Byte"), TEXT("256")));
	EXPECT_FALSE(Import(Object, TEXT("Colour"), TEXT("Mauve")));
	EXPECT_FALSE(Import(Object, TEXT("Subclass"), TEXT("/Script/CoreUObject.Object")));
	EXPECT_FALSE(Import(Object, TEXT("Numbers"), TEXT("(1,2")));

	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({
			TEXT("ImportText (Int32): expected a value of type int32, found 'five'"),
			TEXT("ImportText (Byte): expected a value of type uint8, found '256'"),
			TEXT("ImportText (Colour): expected a value of type ETestColour, found 'Mauve'"),
			TEXT("ImportText (Subclass): expected a value of type TSubclassOf<UTestObject> , found '/Script/CoreUObject.Object'"),
			TEXT("ImportText (Numbers): expected a value of type TArray<int32>, found '(1,2'"),
		}));
}

TEST(Property, TextsOfGuidsAreTheirDigits)
{
	const UScriptStruct* const Struct = TBaseStructure<FGuid>::Get();
	const FGuid Guid(1, 2, 3, 0xabcdef);
	FString Text;
	Struct->ExportText(Text, &Guid, nullptr, nullptr, PPF_None, nullptr);
	FGuid Read;

	EXPECT_EQ(Text, TEXT("00000001000000020000000300ABCDEF"));
	EXPECT_NE(Struct->ImportText(*Text, &Read, nullptr, PPF_None, nullptr, TEXT("Guid")), nullptr);
	EXPECT_EQ(Read, Guid);
}

TEST(Property, StructuresOfCoreAreInCoreUObject)
{
	EXPECT_EQ(TBaseStructure<FVector>::Get()->GetPathName(), TEXT("/Script/CoreUObject.Vector"));
	EXPECT_EQ(FindObject<UScriptStruct>(nullptr, TEXT("/Script/CoreUObject.LinearColor")), TBaseStructure<FLinearColor>::Get());
	EXPECT_EQ(FindFProperty<FStructProperty>(UTestObject::StaticClass(), TEXT("Vector"))->Struct, TBaseStructure<FVector>::Get());
	EXPECT_EQ(TBaseStructure<FVector>::Get()->GetStructureSize(), int32(sizeof(FVector)));
}

TEST(Property, DerivedStructuresHaveTheParentsMembersToo)
{
	const UScriptStruct* const Triple = FTestTriple::StaticStruct();
	FTestTriple Value;
	Value.Third = TEXT("third");

	EXPECT_TRUE(Triple->IsChildOf(FTestPair::StaticStruct()));
	EXPECT_NE(Triple->FindPropertyByName(TEXT("Number")), nullptr);
	EXPECT_EQ(Triple->GetStructTypeHash(&Value), GetTypeHash(Value.Third));
	EXPECT_TRUE((Triple->StructFlags & STRUCT_IdenticalNative) != STRUCT_NoFlags);
}

TEST(Property, CopyAndClearWorkOnWholeValues)
{
	UTestObject* const From = NewObject<UTestObject>();
	UTestObject* const To = NewObject<UTestObject>();
	From->Fixed[0] = From;
	From->Fixed[1] = To;
	From->Weights.Add(TEXT("w"), 1.0f);

	Find(TEXT("Fixed"))->CopyCompleteValue_InContainer(To, From);
	Find(TEXT("Weights"))->CopyCompleteValue_InContainer(To, From);
	EXPECT_EQ(To->Fixed[1], To);
	EXPECT_EQ(To->Weights.Num(), 1);

	Find(TEXT("Weights"))->ClearValue_InContainer(To);
	EXPECT_EQ(To->Weights.Num(), 0);
	EXPECT_TRUE(Find(TEXT("Weights"))->Identical(&To->Weights, nullptr));
	EXPECT_FALSE(Find(TEXT("Weights"))->Identical(&To->Weights, &From->Weights));
}

TEST(ScriptArrayHelper, EditsTheRealArray)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FScriptArrayHelper Helper(CastField<FArrayProperty>(Find(TEXT("Numbers"))), &Object->Numbers);

	EXPECT_EQ(Helper.AddValues(3), 0);
	Object->Numbers = {1, 2, 3};
	Helper.InsertValues(1);
	EXPECT_EQ(Object->Numbers, TArray<int32>({1, 0, 2, 3}));
	Helper.RemoveValues(0, 2);
	EXPECT_EQ(Object->Numbers, TArray<int32>({2, 3}));
	Helper.SwapValues(0, 1);
	EXPECT_EQ(Object->Numbers, TArray<int32>({3, 2}));
	Helper.Resize(1);
	EXPECT_EQ(*reinterpret_cast<int32*>(Helper.GetRawPtr(0)), 3);
	Helper.EmptyValues();
	EXPECT_EQ(Object->Numbers.Num(), 0);
}

TEST(ScriptSetHelper, EditsTheRealSet)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FScriptSetHelper Helper(CastField<FSetProperty>(Find(TEXT("Names"))), &Object->Names);
	const FName A(TEXT("A"));
	const FName B(TEXT("B"));
	Helper.AddElement(&A);
	Helper.AddElement(&B);
	Helper.AddElement(&A);

	EXPECT_EQ(Object->Names.Num(), 2);
	EXPECT_TRUE(Helper.RemoveElement(&A));
	EXPECT_FALSE(Helper.RemoveElement(&A));
	EXPECT_FALSE(Helper.IsValidIndex(0));
	EXPECT_EQ(*reinterpret_cast<FName*>(Helper.GetElementPtr(1)), B);
	EXPECT_EQ(Helper.FindElementIndex(&A), INDEX_NONE);
}

TEST(ScriptMapHelper, EditsTheRealMap)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FScriptMapHelper Helper(CastField<FMapProperty>(Find(TEXT("Weights"))), &Object->Weights);
	const FString Key(TEXT("key"));
	const float One = 1.0f;
	const float Two = 2.0f;
	Helper.AddPair(&Key, &One);
	Helper.AddPair(&Key, &Two);

	EXPECT_EQ(Object->Weights.Num(), 1);
	EXPECT_EQ(Object->Weights[Key], 2.0f);
	EXPECT_EQ(*reinterpret_cast<float*>(Helper.FindValueFromHash(&Key)), 2.0f);
	EXPECT_TRUE(Helper.RemovePair(&Key));
	EXPECT_EQ(Helper.FindValueFromHash(&Key), nullptr);
}

TEST(DynamicContainers, AreOfTheTypeOfNativeOnesOnlyWhereTheyLookAlikeInMemory)
{
	FArrayProperty Array(nullptr, TEXT("Array"));
	Array.AddCppProperty(new FIntProperty(&Array, TEXT("Inner")));
	FSetProperty Set(nullptr, TEXT("Set"));
	Set.AddCppProperty(new FNameProperty(&Set, TEXT("Element")));

	EXPECT_TRUE(Array.SameType(Find(TEXT("Numbers"))));
	EXPECT_FALSE(Set.SameType(Find(TEXT("Names"))));
	EXPECT_TRUE(Find(TEXT("Names"))->SameType(Find(TEXT("Names"))));
	EXPECT_FALSE(Find(TEXT("Objects"))->SameType(Find(TEXT("Numbers"))));
}

TEST(DynamicContainers, SetsAndMapsMadeByHandWorkThroughTheirHelpers)
{
	FMapProperty Map(nullptr, TEXT("Map"));
	Map.AddCppProperty(new FStrProperty(&Map, TEXT("Key")));
	Map.AddCppProperty(new FIntProperty(&Map, TEXT("Value")));
	TArray<uint8> Memory;
	Memory.SetNumZeroed(Map.GetSize());
	TArray<uint8> Other;
	Other.SetNumZeroed(Map.GetSize());
	Map.InitializeValue(Memory.GetData());
	Map.InitializeValue(Other.GetData());

	EXPECT_NE(Map.ImportText(TEXT("((\"a\", 1),(\"b\", 2),(\"A\", 3))"), Memory.GetData(), PPF_None, nullptr), nullptr);
	Map.CopyCompleteValue(Other.GetData(), Memory.GetData());

	FScriptMapHelper Helper(&Map, Other.GetData());
	const FString B(TEXT("b"));
	EXPECT_EQ(Helper.Num(), 2);
	EXPECT_EQ(*reinterpret_cast<int32*>(Helper.FindValueFromHash(&B)), 2);
	EXPECT_EQ(*reinterpret_cast<int32*>(Helper.GetValuePtr(0)), 3);
	EXPECT_TRUE(Map.Identical(Memory.GetData(), Other.GetData()));
	EXPECT_TRUE(Helper.RemovePair(&B));
	EXPECT_FALSE(Map.Identical(Memory.GetData(), Other.GetData()));
	Map.DestroyValue(Memory.GetData());
	Map.DestroyValue(Other.GetData());
}

// Constructors leave vectors and colours unset; reflection makes them of zeros.
TEST(Property, VectorsAndColoursAreMadeOfZeros)
{
	FVector Vector(1.0, 2.0, 3.0);
	TBaseStructure<FVector>::Get()->InitializeStruct(&Vector);
	EXPECT_EQ(Vector, FVector::ZeroVector);
	FLinearColor Colour = FLinearColor::White;
	TBaseStructure<FLinearColor>::Get()->InitializeStruct(&Colour);
	EXPECT_EQ(Colour, FLinearColor(0.0f, 0.0f, 0.0f, 0.0f));
	FColor Bytes = FColor::White;
	TBaseStructure<FColor>::Get()->InitializeStruct(&Bytes);
	EXPECT_EQ(Bytes, FColor(0, 0, 0, 0));
	FIntPoint Point(1, 2);
	TBaseStructure<FIntPoint>::Get()->InitializeStruct(&Point);
	EXPECT_EQ(Point, FIntPoint(0, 0));

	TArray<FVector2D> Array = {FVector2D(1.0, 2.0)};
	TArrayOps<FVector2D>::Get().Insert(&Array, 0, 2);
	EXPECT_EQ(Array, TArray<FVector2D>({FVector2D(0.0, 0.0), FVector2D(0.0, 0.0), FVector2D(1.0, 2.0)}));
}
