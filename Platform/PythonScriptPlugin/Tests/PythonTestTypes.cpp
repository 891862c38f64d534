#include "PythonTestTypes.h"

#include "IPythonScriptPlugin.h"
#include "UObject/UObjectGlobals.h"

void UPythonTestObject::PostEditChangeProperty(FPropertyChangedEvent& Event)
{
	Edits.Add(Event.GetPropertyName().ToString());
}

void UPythonTestObject::SetText(FName AkaName, FString Text)
{
	Texts.Add(AkaName, Text);
}

bool UPythonTestObject::GetText(FName AkaName, FString& OutText) const
{
	const FString* const Text = Texts.Find(AkaName);
	OutText = Text ? *Text : FString();
	return Text != nullptr;
}

int32 UPythonTestObject::ScrollTo(FName, int32 LineIndex, const int32 Offset)
{
	return LineIndex * 100 + Offset;
}

void UPythonTestObject::DestroyYourself()
{
	MarkAsGarbage();
}

void UPythonTestLibrary::Nothing()
{
}

void UPythonTestLibrary::OneOut(int32 InNumber, int32& OutDouble)
{
	OutDouble = InNumber * 2;
}

void UPythonTestLibrary::TwoOuts(int32& OutFirst, int32 Number, FString& OutSecond)
{
	OutFirst = Number + 1;
	OutSecond = FString::FromInt(Number);
}

bool UPythonTestLibrary::PlainBool(bool bInValue)
{
	return bInValue;
}

bool UPythonTestLibrary::BoolAndBool(bool bSucceed, bool& bOutValue)
{
	bOutValue = false;
	return bSucceed;
}

bool UPythonTestLibrary::BoolAndTwo(bool bSucceed, int32& OutFirst, int32& OutSecond)
{
	OutFirst = 1;
	OutSecond = 2;
	return bSucceed;
}

FString UPythonTestLibrary::NumberAndOut(int32 Number, int32& OutNext)
{
	OutNext = Number + 1;
	return FString::FromInt(Number);
}

int32 UPythonTestLibrary::ByReference(TArray<FString>& Items)
{
	Items.Add(TEXT("added"));
	return Items.Num();
}

FString UPythonTestLibrary::ConstReference(const FString& Text)
{
	return Text + TEXT("!");
}

FString UPythonTestLibrary::Defaults(int32 Number, FString Text, FName Name, bool bFlag, FVector2D Point, EPythonTestColor Color)
{
	return FString::Printf(TEXT("%d %s %s %d %.1f/%.1f %d"), Number, *Text, *Name.ToString(), bFlag ? 1 : 0, Point.X, Point.Y,
		static_cast<int32>(Color));
}

int32 UPythonTestLibrary::EchoInt(int32 Value)
{
	return Value;
}

int64 UPythonTestLibrary::EchoInt64(int64 Value)
{
	return Value;
}

uint8 UPythonTestLibrary::EchoByte(uint8 Value)
{
	return Value;
}

float UPythonTestLibrary::EchoFloat(float Value)
{
	return Value;
}

FString UPythonTestLibrary::EchoString(const FString& Value)
{
	return Value;
}

FName UPythonTestLibrary::EchoName(FName Value)
{
	return Value;
}

FText UPythonTestLibrary::EchoText(FText Value)
{
	return Value;
}

UPythonTestObject* UPythonTestLibrary::EchoObject(UPythonTestObject* Value)
{
	return Value;
}

UClass* UPythonTestLibrary::EchoClass(TSubclassOf<UPythonTestObject> Value)
{
	return Value;
}

FPythonTestPlace UPythonTestLibrary::EchoPlace(const FPythonTestPlace& Value)
{
	return Value;
}

FLinearColor UPythonTestLibrary::EchoColor(FLinearColor Value)
{
	return Value;
}

EPythonTestColor UPythonTestLibrary::EchoEnum(EPythonTestColor Value)
{
	return Value;
}

TArray<FName> UPythonTestLibrary::EchoNames(const TArray<FName>& Value)
{
	return Value;
}

TArray<UPythonTestObject*> UPythonTestLibrary::EchoObjects(const TArray<UPythonTestObject*>& Value)
{
	return Value;
}

TSet<FString> UPythonTestLibrary::EchoSet(const TSet<FString>& Value)
{
	return Value;
}

TMap<FString, float> UPythonTestLibrary::EchoMap(const TMap<FString, float>& Value)
{
	return Value;
}

int32 UPythonTestLibrary::K2_UglyName()
{
	return 12;
}

int32 UPythonTestLibrary::Outdated()
{
	return 13;
}

bool UPythonTestLibrary::RunCommand(const FString& Command)
{
	return IPythonScriptPlugin::Get()->ExecPythonCommand(*Command);
}

void UPythonTestLibrary::CollectGarbage()
{
	::CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

int32 UPythonTestLibrary::Reserved(int32 From, int32 Property)
{
	return From - Property;
}

int32 UPythonTestLibrary::Unexposed(int32 Number)
{
	return Number + 100;
}

int32 UPythonTestHostedLibrary::CountSteps(const FPythonTestPlace& Place, const FPythonTestPlace& Other, int32 Stride)
{
	return (Other.Floor - Place.Floor) / Stride;
}

int32 UPythonTestHostedLibrary::LiftPlace(FPythonTestPlace& Place, int32 Floors)
{
	Place.Floor += Floors;
	return Floors * 10;
}

FPythonTestPlace UPythonTestHostedLibrary::WithLabel(const FPythonTestPlace& Place, const FString& Label)
{
	FPythonTestPlace Result = Place;
	Result.Label = Label;
	return Result;
}

int32 UPythonTestHostedLibrary::GetCountOf(const UPythonTestObject* Object, int32 Factor)
{
	return Object->Count * Factor;
}

FPythonTestPlace UPythonTestHostedLibrary::LabelledBy(const FPythonTestPlace& Place, const FString& Label)
{
	return WithLabel(Place, Label);
}

FPythonTestPlace UPythonTestHostedLibrary::OnFloor(const FPythonTestPlace& Place, int32 Floor)
{
	FPythonTestPlace Result = Place;
	Result.Floor = Floor;
	return Result;
}

int32 UPythonTestHostedLibrary::FloorModulo(const FPythonTestPlace& Place, int32 Divisor)
{
	return Place.Floor % Divisor;
}

bool UPythonTestHostedLibrary::HasLabel(const FPythonTestPlace& Place)
{
	return !Place.Label.IsEmpty();
}

bool UPythonTestHostedLibrary::OnSameFloor(const FPythonTestPlace& Place, const FPythonTestPlace& Other)
{
	return Place.Floor == Other.Floor;
}

FPythonTestPlace UPythonTestHostedLibrary::MakeCellar()
{
	return OnFloor(FPythonTestPlace(), -1);
}

int32 UPythonTestHostedLibrary::GetLowestFloor()
{
	return -4;
}

void UPythonTestMisplacedLibrary::WithoutResult(const FPythonTestPlace& Place, int32 Number)
{
}

int32 UPythonTestMisplacedLibrary::WithUnknownSign(const FPythonTestPlace& Place, int32 Number)
{
	return Number;
}

int32 UPythonTestMisplacedLibrary::WithoutTruth(const FPythonTestPlace& Place, int32 Number)
{
	return Number;
}

int32 UPythonTestMisplacedLibrary::OfNumber(int32 Number)
{
	return Number;
}

int32 UPythonTestMisplacedLibrary::OfMember(const FPythonTestPlace& Place)
{
	return Place.Floor;
}

FPythonTestPlace UPythonTestMisplacedLibrary::WithParameter(int32 Number)
{
	return FPythonTestPlace();
}
