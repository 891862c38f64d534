#include <gtest/gtest.h>

#include "LogCapture.h"
#include "ReflectionTestTypes.h"
#include "Templates/Casts.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

TEST(Object, PathsNameTheChainOfOuters)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Paths"));
	UTestObject* const Object = NewObject<UTestObject>(Package, TEXT("Thing"));
	UTestObject* const Sub = NewObject<UTestObject>(Object, TEXT("Sub"));
	UTestObject* const Deep = NewObject<UTestObject>(Sub, TEXT("Deep"));

	EXPECT_EQ(Package->GetPathName(), TEXT("/Game/Paths"));
	EXPECT_EQ(Object->GetPathName(), TEXT("/Game/Paths.Thing"));
	EXPECT_EQ(Sub->GetPathName(), TEXT("/Game/Paths.Thing:Sub"));
	EXPECT_EQ(Deep->GetPathName(), TEXT("/Game/Paths.Thing:Sub.Deep"));
	EXPECT_EQ(Sub->GetFullName(), TEXT("TestObject /Game/Paths.Thing:Sub"));
	EXPECT_EQ(Deep->GetPathName(Object), TEXT("Sub.Deep"));
	EXPECT_EQ(UTestObject::StaticClass()->GetPathName(), TEXT("/Script/CoreUObjectTests.TestObject"));
	EXPECT_EQ(UObject::StaticClass()->GetFullName(), TEXT("Class /Script/CoreUObject.Object"));
}

TEST(Object, UnnamedObjectsAreCalledAfterTheirClass)
{
	const FString First = NewObject<UTestObject>()->GetName();
	const FString Second = NewObject<UTestObject>()->GetName();

	EXPECT_TRUE(First.StartsWith(TEXT("TestObject_"), ESearchCase::CaseSensitive));
	EXPECT_NE(First, Second);
	EXPECT_EQ(NewObject<UTestObject>()->GetOuter(), GetTransientPackage());
	EXPECT_EQ(GetTransientPackage()->GetPathName(), TEXT("/Engine/Transient"));
}

TEST(Object, DefaultObjectLiesInThePackageOfItsClass)
{
	const UTestObject* const Default = GetDefault<UTestObject>();

	EXPECT_EQ(Default->GetPathName(), TEXT("/Script/CoreUObjectTests.Default__TestObject"));
	EXPECT_TRUE(Default->HasAllFlags(RF_ClassDefaultObject | RF_Public));
	EXPECT_TRUE(Default->IsTemplate());
	EXPECT_EQ(NewObject<UTestObject>()->GetArchetype(), Default);
}

TEST(Object, SameNameAndClassIsRebuiltAtTheSameAddress)
{
	UTestObject* const Old = NewObject<UTestObject>(GetTransientPackage(), TEXT("Rebuilt"));
	Old->Int32 = 5;
	Old->String = TEXT("old");
	const TWeakObjectPtr<UTestObject> Weak = Old;

	UTestObject* const New = NewObject<UTestObject>(GetTransientPackage(), TEXT("rebuilt"));

	EXPECT_EQ(New, Old);
	EXPECT_EQ(New->Int32, 0);
	EXPECT_EQ(New->String, TEXT(""));
	EXPECT_EQ(Weak.Get(), nullptr);
}

TEST(ObjectDeathTest, SameNameOfAnotherClassIsFatal)
{
	NewObject<UTestObject>(GetTransientPackage(), TEXT("Taken"));

	EXPECT_DEATH(
		NewObject<UTestChild>(GetTransientPackage(), TEXT("Taken")), "Cannot replace existing object of a different class");
}

TEST(ObjectDeathTest, AbstractClassesMakeNoObjects)
{
	EXPECT_DEATH(
		NewObject<UTestAbstract>(), "Cannot create an object of the abstract class /Script/CoreUObjectTests.TestAbstract");
}

TEST(ObjectDeathTest, ObjectsAreMadeByNewObjectOnly)
{
	EXPECT_DEATH(UTestChild(), "An object is constructed without NewObject");
}

TEST(Object, MarkAsRootSetRootsANewObjectAndLeavesNoFlag)
{
	UTestObject* const Object = NewObject<UTestObject>(GetTransientPackage(), TEXT("Rooted"), RF_MarkAsRootSet);

	EXPECT_TRUE(Object->IsRooted());
	EXPECT_FALSE(Object->HasAnyFlags(RF_MarkAsRootSet));
	Object->RemoveFromRoot();
	EXPECT_FALSE(Object->IsRooted());
}

TEST(Object, TemplateGivesItsValues)
{
	UTestObject* const Template = NewObject<UTestObject>();
	Template->String = TEXT("given");
	Template->Numbers = {1, 2};

	const UTestObject* const Copy = NewObject<UTestObject>(GetTransientPackage(), TEXT("FromTemplate"), RF_NoFlags, Template);

	EXPECT_EQ(Copy->String, TEXT("given"));
	EXPECT_EQ(Copy->Numbers, TArray<int32>({1, 2}));
}

TEST(Object, CastsFollowTheClasses)
{
	UObject* const Child = NewObject<UTestChild>();
	UObject* const Parent = NewObject<UTestObject>();

	EXPECT_EQ(Cast<UTestObject>(Child), Child);
	EXPECT_EQ(Cast<UTestChild>(Parent), nullptr);
	EXPECT_EQ(Cast<UTestChild>(static_cast<UObject*>(nullptr)), nullptr);
	EXPECT_EQ(ExactCast<UTestObject>(Child), nullptr);
	EXPECT_TRUE(Child->IsA<UTestObject>());
	EXPECT_TRUE(UTestChild::StaticClass()->IsChildOf<UObject>());
	EXPECT_EQ(CastChecked<UTestChild>(Child), Child);
}

TEST(Object, FindsByPathByOuterAndByShortName)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Finding"));
	UTestObject* const Object = NewObject<UTestObject>(Package, TEXT("Finding"));
	UTestObject* const Sub = NewObject<UTestObject>(Object, TEXT("FindableSub"));

	EXPECT_EQ(FindObject<UTestObject>(nullptr, TEXT("/Game/Finding.Finding")), Object);
	EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("/game/finding.finding:findablesub")), Sub);
	EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("TestObject'/Game/Finding.Finding'")), Object);
	EXPECT_EQ(FindObject<UTestObject>(Package, TEXT("Finding")), Object);
	EXPECT_EQ(FindObject<UTestObject>(ANY_PACKAGE, TEXT("FindableSub")), Sub);
	EXPECT_EQ(FindObject<UTestChild>(Package, TEXT("Finding")), nullptr);
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/CoreUObjectTests.TestObject")), UTestObject::StaticClass());
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestChild")), UTestChild::StaticClass());
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Finding")), Package);
	EXPECT_EQ(CreatePackage(TEXT("/Game/Finding")), Package);
}

TEST(Object, LoadingAPackageMeansTheObjectOfItsShortName)
{
	UTestObject* const Object = NewObject<UTestObject>(CreatePackage(TEXT("/Game/Loading")), TEXT("Loading"));

	EXPECT_EQ(StaticLoadObject(UTestObject::StaticClass(), nullptr, TEXT("/Game/Loading")), Object);
}

TEST(Object, LoadingWhatIsNotThereWarnsAndGivesNull)
{
	const FLogCapture Log(TEXT("LogUObjectGlobals"));

	EXPECT_EQ(LoadObject<UTestObject>(nullptr, TEXT("/Game/Nowhere")), nullptr);

	EXPECT_EQ(Log.Warnings(), TArray<FString>({TEXT("Failed to find object 'TestObject /Game/Nowhere.Nowhere'")}));
}

TEST(Object, RenameMovesAndIsFoundUnderItsNewName)
{
	UPackage* const From = CreatePackage(TEXT("/Game/From"));
	UPackage* const To = CreatePackage(TEXT("/Game/To"));
	UTestObject* const Object = NewObject<UTestObject>(From, TEXT("Wanderer"));

	EXPECT_TRUE(Object->Rename(TEXT("Settler"), To));

	EXPECT_EQ(Object->GetPathName(), TEXT("/Game/To.Settler"));
	EXPECT_EQ(FindObject<UObject>(From, TEXT("Wanderer")), nullptr);
	EXPECT_EQ(FindObject<UObject>(To, TEXT("Settler")), Object);
	EXPECT_TRUE(From->IsDirty());
	EXPECT_TRUE(To->IsDirty());
}

TEST(Object, RenameToNothingMakesANewName)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Nameless"));
	UTestObject* const First = NewObject<UTestObject>(Package, TEXT("First"));
	UTestObject* const Second = NewObject<UTestObject>(Package, TEXT("Second"));

	EXPECT_TRUE(First->Rename(TEXT("")));
	EXPECT_TRUE(Second->Rename(TEXT("None")));

	EXPECT_TRUE(First->GetName().StartsWith(TEXT("TestObject_")));
	EXPECT_TRUE(Second->GetName().StartsWith(TEXT("TestObject_")));
	EXPECT_NE(First->GetFName(), Second->GetFName());
}

TEST(Object, RenameToATakenNameIsRefused)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Crowded"));
	UTestObject* const Object = NewObject<UTestObject>(Package, TEXT("Late"));
	NewObject<UTestObject>(Package, TEXT("Early"));
	const FLogCapture Log(TEXT("LogObj"));

	EXPECT_FALSE(Object->Rename(TEXT("Early")));

	EXPECT_EQ(Object->GetName(), TEXT("Late"));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>(
			{TEXT("TestObject /Game/Crowded.Late cannot become 'Early' in Package /Game/Crowded: the name is taken")}));
}

TEST(Object, RenameIntoItselfOrWhatItHoldsIsRefused)
{
	UTestObject* const Object = NewObject<UTestObject>(CreatePackage(TEXT("/Game/Circle")), TEXT("Outer"));
	UTestObject* const Inner = NewObject<UTestObject>(NewObject<UTestObject>(Object, TEXT("Middle")), TEXT("Inner"));
	const FLogCapture Log(TEXT("LogObj"));

	EXPECT_FALSE(Object->Rename(nullptr, Object));
	EXPECT_FALSE(Object->Rename(TEXT("New"), Inner));

	EXPECT_EQ(Object->GetPathName(), TEXT("/Game/Circle.Outer"));
	EXPECT_EQ(Log.Errors().Num(), 2);
	EXPECT_TRUE(Log.Errors()[0].EndsWith(TEXT("in TestObject /Game/Circle.Outer: it would lie within itself")));
}

TEST(Object, WhatReflectionMadeKeepsItsNameAndPlace)
{
	UTestObject* const Object = NewObject<UTestObject>();
	UClass* const Class = UTestObject::StaticClass();
	const FLogCapture Log(TEXT("LogObj"));

	EXPECT_FALSE(Class->GetDefaultObject()->Rename(TEXT("Usual")));
	EXPECT_FALSE(Class->Rename(TEXT("Renamed")));
	EXPECT_FALSE(Class->Rename(nullptr, Object));
	EXPECT_FALSE(Class->GetOutermost()->Rename(TEXT("/Script/Renamed")));
	EXPECT_FALSE(GetTransientPackage()->Rename(TEXT("/Engine/Renamed")));
	EXPECT_FALSE(CreatePackage(TEXT("/Game/Moving"))->Rename(nullptr, Object));

	EXPECT_EQ(Log.Errors().Num(), 6);
	EXPECT_EQ(Class->GetDefaultObject()->GetName(), TEXT("Default__TestObject"));
	EXPECT_TRUE(CreatePackage(TEXT("/Game/Moving"))->Rename(TEXT("/Game/Moved")));
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Moving")), nullptr);
}

TEST(Object, TypedOuterIsTheNearestOfThatClass)
{
	UTestObject* const Outer = NewObject<UTestObject>();
	UTestChild* const Middle = NewObject<UTestChild>(Outer);
	UTestObject* const Inner = NewObject<UTestObject>(Middle);

	EXPECT_EQ(Inner->GetTypedOuter<UTestObject>(), Middle);
	EXPECT_EQ(Middle->GetTypedOuter<UTestChild>(), nullptr);
	EXPECT_EQ(Inner->GetOutermost(), GetTransientPackage());
	EXPECT_TRUE(Inner->IsIn(Outer));
}

TEST(Object, FlagsHaveTheValuesThatScriptsKnow)
{
	UTestObject* const Object = NewObject<UTestObject>();
	Object->SetFlags(static_cast<EObjectFlags>(1 | 8));

	EXPECT_TRUE(Object->HasAllFlags(RF_Public | RF_Transactional));
	Object->ClearFlags(RF_Public);
	EXPECT_EQ(Object->GetFlags(), 8);
	EXPECT_EQ(RF_Standalone, 2);
	EXPECT_EQ(RF_MarkAsRootSet, 0x80);
	EXPECT_EQ(RF_PendingKill, 0x20000000);
	EXPECT_EQ(RF_Garbage, 0x40000000);
}

TEST(Object, GarbageIsInvalidAtOnce)
{
	UTestObject* const Object = NewObject<UTestObject>();
	const TWeakObjectPtr<UTestObject> Weak(Object);
	Object->MarkAsGarbage();

	EXPECT_FALSE(IsValid(Object));
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_EQ(Weak.Get(true), Object);
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_FALSE(IsValid(nullptr));
}

TEST(Object, ModifyMarksThePackageAndTells)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Modified"));
	UTestObject* const Object = NewObject<UTestObject>(Package, TEXT("Modified"));
	TArray<UObject*> Told;
	const FDelegateHandle Handle =
		FCoreUObjectDelegates::OnObjectModified.AddLambda([&Told](UObject* Modified) { Told.Add(Modified); });

	EXPECT_FALSE(Object->Modify(false));
	EXPECT_FALSE(Package->IsDirty());
	Object->Modify();

	EXPECT_TRUE(Package->IsDirty());
	EXPECT_EQ(Told, TArray<UObject*>({Object, Object}));
	FCoreUObjectDelegates::OnObjectModified.Remove(Handle);
}

TEST(Object, PostEditChangePropertyTells)
{
	UTestObject* const Object = NewObject<UTestObject>();
	FName Changed;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&Changed](UObject*, FPropertyChangedEvent& Event) { Changed = Event.GetPropertyName(); });

	FPropertyChangedEvent Event(Object->GetClass()->FindPropertyByName(TEXT("Int32")), EPropertyChangeType::ValueSet);
	Object->PostEditChangeProperty(Event);

	EXPECT_EQ(Changed, TEXT("Int32"));
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
}

TEST(Object, IsAssetOnlyAsPublicObjectOfAPackage)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Assets"));

	EXPECT_TRUE(NewObject<UTestObject>(Package, TEXT("Asset"), RF_Public)->IsAsset());
	EXPECT_FALSE(NewObject<UTestObject>(Package, TEXT("NotPublic"))->IsAsset());
	EXPECT_FALSE(NewObject<UTestObject>(GetTransientPackage(), TEXT("NoAsset"), RF_Public)->IsAsset());
	EXPECT_FALSE(GetDefault<UTestObject>()->IsAsset());
}

TEST(ObjectIterator, MeetsObjectsOfDerivedClassesAndLeavesDefaultsOut)
{
	UTestChild* const Child = NewObject<UTestChild>();
	bool bMetChild = false;
	bool bMetDefault = false;
	for (UTestObject* Object : TObjectRange<UTestObject>())
	{
		bMetChild |= Object == Child;
		bMetDefault |= Object->HasAnyFlags(RF_ClassDefaultObject);
	}

	EXPECT_TRUE(bMetChild);
	EXPECT_FALSE(bMetDefault);
}

TEST(ObjectIteratorDeathTest, NoObjectIsMadeWhileTheTableIsLocked)
{
	EXPECT_DEATH(
		{
			GUObjectArray.LockInternalArray();
			NewObject<UTestObject>();
		},
		"while the object table is locked");
}
