#include "Templates/SharedPointer.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

namespace
{
struct FBase
{
	virtual ~FBase() { ++NumDestroyed; }
	int32 Number = 1;
	static int32 NumDestroyed;
};

int32 FBase::NumDestroyed = 0;

/** A second base in front moves the address of FBase. */
struct FOther
{
	virtual ~FOther() = default;
	int32 Padding = 0;
};

struct FDerived : FOther, FBase
{
};

class FNode : public TSharedFromThis<FNode>
{
public:
	virtual ~FNode() = default;
	void Construct() { SharedInConstruct = AsShared(); }
	TWeakPtr<FNode> SharedInConstruct;
};

class FLeaf : public FNode
{
public:
	TSharedRef<FLeaf> GetSelf() { return SharedThis(this); }
	TSharedRef<const FLeaf> GetConstSelf() const { return SharedThis(this); }
};
}

TEST(SharedPointer, TheLastReferenceDestroysTheObjectOnce)
{
	FBase::NumDestroyed = 0;
	{
		const TSharedPtr<FBase> First = MakeShared<FBase>();
		const TSharedPtr<FBase> Second = First;
		EXPECT_EQ(First.GetSharedReferenceCount(), 2);
		EXPECT_FALSE(First.IsUnique());
	}
	EXPECT_EQ(FBase::NumDestroyed, 1);
}

TEST(SharedPointer, ADerivedObjectEndsThroughAPointerToItsBase)
{
	FBase::NumDestroyed = 0;
	TSharedPtr<FBase> Base = MakeShared<FDerived>();
	Base = MakeShareable(new FDerived());
	EXPECT_EQ(FBase::NumDestroyed, 1);
	Base.Reset();
	EXPECT_EQ(FBase::NumDestroyed, 2);
}

TEST(SharedPointer, MakeShareableCallsTheGivenDeleter)
{
	int32 NumDeleted = 0;
	int32 Object = 5;
	{
		const TSharedRef<int32> Ref = MakeShareable(&Object, [&NumDeleted](int32*) { ++NumDeleted; });
		EXPECT_EQ(*Ref, 5);
	}
	EXPECT_EQ(NumDeleted, 1);
}

TEST(SharedPointer, CastsKeepTheObjectAndItsCount)
{
	const TSharedRef<FDerived> Derived = MakeShared<FDerived>();
	const TSharedRef<FBase> Base = Derived;
	const TSharedRef<FDerived> Again = StaticCastSharedRef<FDerived>(Base);
	const TSharedPtr<FDerived> AgainAsPointer = StaticCastSharedPtr<FDerived>(TSharedPtr<FBase>(Base));
	const TSharedRef<FBase> Mutable = ConstCastSharedRef<FBase>(TSharedRef<const FBase>(Base));

	EXPECT_EQ(&Again.Get(), &Derived.Get());
	EXPECT_EQ(AgainAsPointer, Derived);
	EXPECT_EQ(Mutable, Base);
	EXPECT_EQ(Derived.GetSharedReferenceCount(), 5);
}

TEST(SharedPointer, AMovedFromPointerIsNull)
{
	TSharedPtr<FBase> From = MakeShared<FBase>();
	const TSharedPtr<FBase> To = MoveTemp(From);
	EXPECT_FALSE(From.IsValid());
	EXPECT_TRUE(From == nullptr);
	EXPECT_TRUE(To.IsUnique());
}

TEST(SharedPointer, AMovedFromReferenceStillRefersToItsObject)
{
	TSharedRef<FBase> From = MakeShared<FBase>();
	const TSharedRef<FBase> To = MoveTemp(From);
	EXPECT_EQ(&From.Get(), &To.Get());
}

TEST(SharedPointer, AssigningAPointerToItselfKeepsTheObject)
{
	TSharedPtr<FBase> Pointer = MakeShared<FBase>();
	const TSharedPtr<FBase>& Alias = Pointer;
	Pointer = Alias;
	EXPECT_TRUE(Pointer.IsUnique());
}

TEST(SharedPointer, AWeakPointerKeepsNothingAlive)
{
	TSharedPtr<FBase> Strong = MakeShared<FBase>();
	const TWeakPtr<FBase> Weak = Strong;
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_EQ(Weak.Pin(), Strong);
	EXPECT_TRUE(Weak.HasSameObject(Strong.Get()));

	Strong.Reset();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
}

TEST(SharedPointer, AWeakPointerHashesAlikeAfterItsObjectDied)
{
	TSharedPtr<FBase> Strong = MakeShared<FBase>();
	const TWeakPtr<FBase> Weak = Strong;
	const uint32 Hash = GetTypeHash(Weak);
	EXPECT_EQ(Hash, GetTypeHash(Strong));
	Strong.Reset();
	EXPECT_EQ(GetTypeHash(Weak), Hash);
}

TEST(SharedPointer, PointersAreKeysOfSets)
{
	const TSharedRef<FBase> First = MakeShared<FBase>();
	const TSharedRef<FBase> Second = MakeShared<FBase>();
	TSet<TSharedPtr<FBase>> Set;
	Set.Add(First);
	Set.Add(First);
	EXPECT_EQ(Set.Num(), 1);
	EXPECT_FALSE(Set.Contains(Second));
}

// The reference exists by the time of Construct, but not in the C++ constructor.
TEST(SharedFromThis, WorksInConstruct)
{
	const TSharedRef<FLeaf> Leaf = MakeShared<FLeaf>();
	Leaf->Construct();
	EXPECT_EQ(Leaf->SharedInConstruct.Pin(), Leaf);
}

TEST(SharedFromThis, SharedThisHasTheTypeAtHand)
{
	const TSharedRef<FLeaf> Leaf = MakeShareable(new FLeaf());
	EXPECT_EQ(Leaf->GetSelf(), Leaf);
	EXPECT_EQ(&Leaf->GetConstSelf().Get(), &Leaf.Get());
	EXPECT_EQ(Leaf.GetSharedReferenceCount(), 1);
}

TEST(SharedFromThis, ACopyOfAnObjectBelongsToNobody)
{
	const TSharedRef<FLeaf> Leaf = MakeShared<FLeaf>();
	const FLeaf Copy = *Leaf;
	EXPECT_FALSE(Copy.DoesSharedInstanceExist());
	EXPECT_TRUE(Leaf->DoesSharedInstanceExist());
}

TEST(SharedFromThis, CostsOnePointer)
{
	class FSmall : public TSharedFromThis<FSmall>
	{
	};
	EXPECT_EQ(sizeof(FSmall), sizeof(void*));
}

TEST(SharedPointerDeathTest, ANullPointerGivesNoReference)
{
	const TSharedPtr<FBase> Null;
	EXPECT_DEATH(Null.ToSharedRef(), "Assertion failed: IsValid\\(\\)");
	EXPECT_DEATH(TSharedRef<FBase>(static_cast<FBase*>(nullptr)), "Assertion failed: Object != nullptr");
}

TEST(SharedPointerDeathTest, AnObjectThatNobodySharesGivesNoReference)
{
	FLeaf OnStack;
	EXPECT_DEATH(OnStack.AsShared(), "Assertion failed: Owner.Get\\(\\) != nullptr");
}
