#include <gtest/gtest.h>

#include "Engine/Blueprint.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Modules/ModuleManager.h"
#include "UObject/UnrealType.h"

namespace
{
/** A data blueprint as the editor makes it: an asset and its class, which are two objects of one package. */
UBlueprint* MakeBlueprint(const TCHAR* PackageName)
{
	FModuleManager::Get().LoadModuleChecked(TEXT("CoreUObject"));
	UPackage* const Package = CreatePackage(PackageName);
	UBlueprint* const Blueprint = NewObject<UBlueprint>(Package, TEXT("Data"), RF_Public | RF_Standalone);
	UClass* const Class = NewObject<UClass>(Package, TEXT("Data_C"), RF_Public);
	Class->SetSuperStruct(UObject::StaticClass());
	FIntProperty* const Speed = new FIntProperty(Class, TEXT("Speed"));
	Speed->SetPropertyFlags(CPF_Edit | CPF_BlueprintVisible);
	Class->AddCppProperty(Speed);
	Class->Bind();
	Class->StaticLink();
	Blueprint->GeneratedClass = Class;
	Blueprint->ParentClass = UObject::StaticClass();
	return Blueprint;
}
}

TEST(Blueprint, LoadsByItsPackageAndMakesObjectsOfItsClass)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("/Game/Tools/Data"));
	UBlueprint* const Loaded = LoadObject<UBlueprint>(nullptr, TEXT("/Game/Tools/Data"));
	ASSERT_EQ(Loaded, Blueprint);

	UObject* const Object = NewObject<UObject>(GetTransientPackage(), Loaded->GeneratedClass);
	const FIntProperty* const Speed = FindFProperty<FIntProperty>(Object->GetClass(), TEXT("Speed"));
	Speed->SetPropertyValue_InContainer(Object, 7);

	EXPECT_EQ(Speed->GetPropertyValue_InContainer(Object), 7);
	EXPECT_EQ(Loaded->GeneratedClass->GetPathName(), TEXT("/Game/Tools/Data.Data_C"));
	EXPECT_TRUE(Loaded->IsAsset());
}

TEST(Blueprint, KeepsItsGeneratedClassAlive)
{
	const UBlueprint* const Blueprint = MakeBlueprint(TEXT("/Game/Tools/Kept"));
	const FWeakObjectPtr Class(*Blueprint->GeneratedClass);

	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);

	EXPECT_TRUE(Class.IsValid());
}

TEST(BlueprintFunctionLibrary, IsAnAbstractClassOfTheEngine)
{
	const UClass* const Class = UBlueprintFunctionLibrary::StaticClass();

	EXPECT_EQ(Class->GetPathName(), TEXT("/Script/Engine.BlueprintFunctionLibrary"));
	EXPECT_TRUE(Class->HasAllClassFlags(CLASS_Abstract | CLASS_MinimalAPI));
}
