#include <gtest/gtest.h>

#include "ReflectionTestTypes.h"
#include "UObject/GCObject.h"
#include "UObject/GCScopeLock.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

namespace
{
/** A rooted object with one of each kind of reference. */
class GarbageCollection : public testing::Test
{
protected:
	void SetUp() override
	{
		Holder = NewObject<UTestObject>();
		Holder->AddToRoot();
		Target = NewObject<UTestObject>();
	}
	void TearDown() override
	{
		Holder->RemoveFromRoot();
		CollectGarbage(RF_NoFlags);
	}

	bool Survives()
	{
		const FWeakObjectPtr Weak(Target);
		CollectGarbage(RF_NoFlags);
		return Weak.IsValid();
	}

	UTestObject* Holder = nullptr;
	UTestObject* Target = nullptr;
};

class FKeeper final : public FGCObject
{
public:
	void AddReferencedObjects(FReferenceCollector& Collector) override
	{
		Collector.AddReferencedObject(Object);
		Collector.AddReferencedObjects(Array);
		Collector.AddReferencedObjects(Set);
		Collector.AddReferencedObjects(Map);
	}
	FString GetReferencerName() const override { return TEXT("FKeeper"); }

	UObject* Object = nullptr;
	TArray<UObject*> Array;
	TSet<UObject*> Set;
	TMap<FName, UObject*> Map;
};
}

TEST_F(GarbageCollection, WhatNobodyRefersToDies)
{
	EXPECT_FALSE(Survives());
}

TEST_F(GarbageCollection, ARootedObjectLives)
{
	Target->AddToRoot();
	EXPECT_TRUE(Survives());
	Target->RemoveFromRoot();
	EXPECT_FALSE(Survives());
}

TEST_F(GarbageCollection, KeepFlagsKeep)
{
	Target->SetFlags(RF_Standalone);
	const FWeakObjectPtr Weak(Target);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Weak.IsValid());
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollection, ObjectPropertyKeeps)
{
	Holder->Object = Target;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, ObjectPtrKeeps)
{
	Holder->Wrapped = Target;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, FixedArrayKeeps)
{
	Holder->Fixed[1] = Target;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, ArrayKeeps)
{
	Holder->Objects.Add(nullptr);
	Holder->Objects.Add(Target);
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, SetKeeps)
{
	Holder->ObjectSet.Add(Target);
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, MapKeyKeeps)
{
	Holder->ByObject.Add(Target, 1);
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, MapValueKeeps)
{
	Holder->ObjectsByName.Add(TEXT("Key"), Target);
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, StructureKeeps)
{
	Holder->Pair.Object = Target;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, StructureInArrayOfStructuresInArrayKeeps)
{
	Holder->Pairs.AddDefaulted();
	Holder->Pairs[0].Children.AddDefaulted();
	Holder->Pairs[0].Children[0].Object = Target;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, OuterIsKeptByWhatLiesInIt)
{
	Holder->Object = NewObject<UTestObject>(Target);
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, ClassPropertyKeepsAClassMadeAtRunTime)
{
	UClass* const Class = NewObject<UClass>(GetTransientPackage(), TEXT("KeptClass"), RF_Public);
	Class->SetSuperStruct(UTestObject::StaticClass());
	Class->Bind();
	Class->StaticLink();
	const FWeakObjectPtr Weak(Class);
	Holder->Class = Class;
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
	Holder->Class = nullptr;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollection, AnObjectKeepsItsClass)
{
	UClass* const Class = NewObject<UClass>(GetTransientPackage(), TEXT("LivingClass"), RF_Public);
	Class->SetSuperStruct(UTestObject::StaticClass());
	Class->Bind();
	Class->StaticLink();
	Holder->Object = NewObject<UObject>(GetTransientPackage(), Class);
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Holder->Object->GetClass(), Class);
	EXPECT_EQ(Class->GetSuperClass(), UTestObject::StaticClass());
}

TEST_F(GarbageCollection, WeakPropertyDoesNotKeepAndTurnsNull)
{
	Holder->Weak = Target;
	EXPECT_FALSE(Survives());
	EXPECT_EQ(Holder->Weak.Get(), nullptr);
	EXPECT_TRUE(Holder->Weak.IsStale());
}

TEST_F(GarbageCollection, ACycleDies)
{
	UTestObject* const Other = NewObject<UTestObject>();
	Target->Object = Other;
	Other->Object = Target;
	EXPECT_FALSE(Survives());
}

TEST_F(GarbageCollection, ALongChainLives)
{
	UTestObject* Last = Holder;
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		UTestLifetime* const Link = NewObject<UTestLifetime>();
		Last->Object = Link;
		UTestObject* const Next = NewObject<UTestObject>();
		Link->Unreflected = Next;
		Last = Next;
	}
	Last->Object = Target;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, ReferencesToGarbageTurnNull)
{
	Holder->Object = Target;
	Holder->Objects.Add(Target);
	Holder->ObjectsByName.Add(TEXT("Key"), Target);
	Holder->Pair.Object = Target;
	Target->MarkAsGarbage();
	EXPECT_FALSE(Survives());

	EXPECT_EQ(Holder->Object, nullptr);
	EXPECT_EQ(Holder->Objects, TArray<UObject*>({nullptr}));
	EXPECT_EQ(Holder->ObjectsByName[TEXT("Key")], nullptr);
	EXPECT_EQ(Holder->Pair.Object, nullptr);
}

TEST_F(GarbageCollection, ObjectsOutsideTheSystemKeepWhatTheyTellAbout)
{
	UObject* const InArray = NewObject<UTestObject>();
	UObject* const InSet = NewObject<UTestObject>();
	UObject* const InMap = NewObject<UTestObject>();
	const TArray<FWeakObjectPtr> All = {
		FWeakObjectPtr(Target), FWeakObjectPtr(InArray), FWeakObjectPtr(InSet), FWeakObjectPtr(InMap)};
	{
		FKeeper Keeper;
		Keeper.Object = Target;
		Keeper.Array.Add(InArray);
		Keeper.Set.Add(InSet);
		Keeper.Map.Add(TEXT("Key"), InMap);
		const FKeeper Copy = Keeper;
		Keeper = FKeeper();
		CollectGarbage(RF_NoFlags);
		for (const FWeakObjectPtr& Pointer : All)
		{
			EXPECT_TRUE(Pointer.IsValid());
		}
	}
	CollectGarbage(RF_NoFlags);
	for (const FWeakObjectPtr& Pointer : All)
	{
		EXPECT_FALSE(Pointer.IsValid());
	}
}

TEST_F(GarbageCollection, StrongPointerKeepsUntilItLetsGo)
{
	TStrongObjectPtr<UTestObject> Strong(Target);
	EXPECT_TRUE(Survives());
	Strong.Reset();
	EXPECT_FALSE(Survives());
}

TEST_F(GarbageCollection, ClassesTellAboutUnreflectedReferences)
{
	UTestLifetime* const Middle = NewObject<UTestLifetime>();
	Middle->Unreflected = Target;
	Holder->Object = Middle;
	EXPECT_TRUE(Survives());
}

TEST_F(GarbageCollection, DestructionGoesThroughItsSteps)
{
	NewObject<UTestLifetime>();
	UTestLifetime::NumBegun = UTestLifetime::NumFinished = UTestLifetime::NumDestroyed = 0;
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UTestLifetime::NumBegun, 1);
	EXPECT_EQ(UTestLifetime::NumFinished, 1);
	EXPECT_EQ(UTestLifetime::NumDestroyed, 1);
}

TEST_F(GarbageCollection, WaitsForTheEndOfAGuard)
{
	const FWeakObjectPtr Weak(Target);
	{
		const FGCScopeGuard Guard;
		CollectGarbage(RF_NoFlags);
		EXPECT_TRUE(Weak.IsValid());
		EXPECT_FALSE(CollectRequestedGarbage());
	}
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_TRUE(CollectRequestedGarbage());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(CollectRequestedGarbage());
}

TEST_F(GarbageCollection, NamesOfTheDeadAreFree)
{
	NewObject<UTestObject>(GetTransientPackage(), TEXT("Mortal"));
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(FindObject<UObject>(GetTransientPackage(), TEXT("Mortal")), nullptr);
	EXPECT_NE(NewObject<UTestChild>(GetTransientPackage(), TEXT("Mortal")), nullptr);
}

TEST_F(GarbageCollection, NativeTypesAndTheirDefaultsStay)
{
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(FindObject<UClass>(ANY_PACKAGE, TEXT("TestObject")), UTestObject::StaticClass());
	EXPECT_EQ(FindObject<UObject>(ANY_PACKAGE, TEXT("Default__TestObject")), GetDefault<UTestObject>());
	EXPECT_NE(UTestObject::StaticClass()->FindFunctionByName(TEXT("Add")), nullptr);
	EXPECT_EQ(FindObject<UScriptStruct>(ANY_PACKAGE, TEXT("Vector")), TBaseStructure<FVector>::Get());
}

TEST_F(GarbageCollection, TellsBeforeAndAfter)
{
	TArray<FString> Told;
	const FDelegateHandle Before =
		FCoreUObjectDelegates::GetPreGarbageCollectDelegate().AddLambda([&Told] { Told.Add(TEXT("before")); });
	const FDelegateHandle After = FCoreUObjectDelegates::GetPostGarbageCollect().AddLambda([&Told] { Told.Add(TEXT("after")); });
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Told, TArray<FString>({TEXT("before"), TEXT("after")}));
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Remove(Before);
	FCoreUObjectDelegates::GetPostGarbageCollect().Remove(After);
}
