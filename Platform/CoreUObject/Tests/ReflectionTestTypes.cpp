#include "ReflectionTestTypes.h"

#include <gtest/gtest.h>

#include "Modules/ModuleManager.h"
#include "UObject/UObjectGlobals.h"

namespace
{
class FTypesEnvironment final : public testing::Environment
{
public:
	void SetUp() override { FModuleManager::Get().LoadModuleChecked(TEXT("CoreUObject")); }
};

testing::Environment* const GTypesEnvironment = testing::AddGlobalTestEnvironment(new FTypesEnvironment);
}

int32 UTestLifetime::NumBegun = 0;
int32 UTestLifetime::NumFinished = 0;
int32 UTestLifetime::NumDestroyed = 0;

bool UTestObject::GetLabel(FName Which, FString& OutLabel) const
{
	if (Which != TEXT("Known"))
	{
		return false;
	}
	OutLabel = String;
	return true;
}

FString UTestObject::Describe(const FString& Text, FName Name, float Scale, bool bLoud, FVector2D Size,
	const FLinearColor& Colour, FVector Where, ETestColour Kind, UObject* Object, const FString& End)
{
	return FString::Printf(TEXT("%s %s %.2f %d %.1f %.1f %.1f %d %s%s"), *Text, *Name.ToString(), Scale, int32(bLoud), Size.X,
		Colour.A, Where.Z, int32(Kind), *GetNameSafe(Object), *End);
}

void UTestObject::Grow(TArray<int32>& Numbers, int32 By)
{
	for (int32& Number : Numbers)
	{
		Number += By;
	}
	Numbers.Add(By);
}

void UTestObject::Remember(const FString& What)
{
	String = What;
}

UTestChild::UTestChild()
{
	Int32 = 77;
}

UTestLifetime::UTestLifetime(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UTestLifetime::~UTestLifetime()
{
	++NumDestroyed;
}

void UTestLifetime::BeginDestroy()
{
	++NumBegun;
	Super::BeginDestroy();
}

void UTestLifetime::FinishDestroy()
{
	++NumFinished;
	Super::FinishDestroy();
}

void UTestLifetime::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UTestLifetime*>(InThis)->Unreflected, InThis);
	Super::AddReferencedObjects(InThis, Collector);
}
