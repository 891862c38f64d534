#pragma once

#include "UObject/GCObject.h"

/** Keeps one object alive from anywhere. */
template <typename ObjectType>
class TStrongObjectPtr
{
public:
	using ElementType = ObjectType;

	TStrongObjectPtr() = default;
	TStrongObjectPtr(std::nullptr_t) {}
	explicit TStrongObjectPtr(ObjectType* InObject) { Reset(InObject); }

	ObjectType* Get() const { return Referencer.Object; }
	ObjectType& operator*() const
	{
		check(IsValid());
		return *Get();
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Get();
	}
	bool IsValid() const { return Get() != nullptr; }
	explicit operator bool() const { return IsValid(); }
	void Reset(ObjectType* InObject = nullptr) { Referencer.Object = InObject; }

	friend bool operator==(const TStrongObjectPtr& Left, const TStrongObjectPtr& Right) { return Left.Get() == Right.Get(); }
	friend bool operator!=(const TStrongObjectPtr& Left, const TStrongObjectPtr& Right) { return Left.Get() != Right.Get(); }
	friend uint32 GetTypeHash(const TStrongObjectPtr& Pointer) { return PointerHash(Pointer.Get()); }

private:
	class FReferencer final : public FGCObject
	{
	public:
		FReferencer() = default;
		FReferencer(const FReferencer&) = default;
		FReferencer& operator=(const FReferencer&) = default;
		void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Object); }
		FString GetReferencerName() const override { return TEXT("TStrongObjectPtr"); }

		ObjectType* Object = nullptr;
	};

	FReferencer Referencer;
};
