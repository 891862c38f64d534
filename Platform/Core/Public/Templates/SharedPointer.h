#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointerInternals.h"
#include "Templates/TypeHash.h"

template <typename To, typename From, ESPMode Mode>
TSharedRef<To, Mode> StaticCastSharedRef(const TSharedRef<From, Mode>& Ref);

namespace SharedPointerInternals
{
/** Tells an object that is a TSharedFromThis who counts its references. */
template <typename OtherType, ESPMode Mode>
void EnableSharedFromThis(TReferenceController<Mode>* Controller, const TSharedFromThis<OtherType, Mode>* Object)
{
	Object->SetReferenceController(Controller);
}

template <ESPMode Mode>
void EnableSharedFromThis(TReferenceController<Mode>*, const volatile void*)
{
}
}

/**
 * A strong reference that is never null. A moved-from reference still refers to its object, for the same reason.
 */
template <typename ObjectType, ESPMode Mode>
class TSharedRef
{
public:
	using ElementType = ObjectType;

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	explicit TSharedRef(OtherType* InObject)
		: TSharedRef(
			  SharedPointerInternals::TRawPtrProxy<OtherType, SharedPointerInternals::TDefaultDeleter<OtherType>>{InObject, {}})
	{
	}

	template <typename OtherType, typename DeleterType,
		typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TSharedRef(SharedPointerInternals::TRawPtrProxy<OtherType, DeleterType> Proxy)
		: Object(Proxy.Object)
		, Referencer(new SharedPointerInternals::TPointerReferenceController<OtherType, DeleterType, Mode>(
			  Proxy.Object, std::move(Proxy.Deleter)))
	{
		check(Object != nullptr);
		SharedPointerInternals::EnableSharedFromThis<>(Referencer.Get(), Proxy.Object);
	}

	TSharedRef(const TSharedRef& Other) = default;

	TSharedRef(TSharedRef&& Other)
		: TSharedRef(static_cast<const TSharedRef&>(Other))
	{
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	TSharedRef& operator=(const TSharedRef& Other) = default;

	TSharedRef& operator=(TSharedRef&& Other)
	{
		std::swap(Object, Other.Object);
		std::swap(Referencer, Other.Referencer);
		return *this;
	}

	ObjectType& Get() const { return *Object; }
	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object; }

	int32 GetSharedReferenceCount() const { return Referencer.GetSharedCount(); }
	bool IsUnique() const { return GetSharedReferenceCount() == 1; }

	/** For code that handles references and pointers alike; always true. */
	bool IsValid() const { return true; }

private:
	template <typename, ESPMode>
	friend class TSharedRef;
	template <typename, ESPMode>
	friend class TSharedPtr;
	template <typename, ESPMode>
	friend class TWeakPtr;
	template <typename, ESPMode>
	friend class TSharedFromThis;
	template <typename OtherType, ESPMode OtherMode, typename... ArgTypes>
	friend TSharedRef<OtherType, OtherMode> MakeShared(ArgTypes&&... Args);
	template <typename To, typename From, ESPMode OtherMode>
	friend TSharedRef<To, OtherMode> StaticCastSharedRef(const TSharedRef<From, OtherMode>& Ref);
	template <typename To, typename From, ESPMode OtherMode>
	friend TSharedRef<To, OtherMode> ConstCastSharedRef(const TSharedRef<From, OtherMode>& Ref);

	TSharedRef(ObjectType* InObject, SharedPointerInternals::TSharedReferencer<Mode> InReferencer)
		: Object(InObject)
		, Referencer(std::move(InReferencer))
	{
		check(Object != nullptr);
	}

	ObjectType* Object;
	SharedPointerInternals::TSharedReferencer<Mode> Referencer;
};

/** A strong reference that may be null. */
template <typename ObjectType, ESPMode Mode>
class TSharedPtr
{
public:
	using ElementType = ObjectType;

	TSharedPtr() = default;
	TSharedPtr(decltype(nullptr)) {}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	explicit TSharedPtr(OtherType* InObject)
		: TSharedPtr(
			  SharedPointerInternals::TRawPtrProxy<OtherType, SharedPointerInternals::TDefaultDeleter<OtherType>>{InObject, {}})
	{
	}

	template <typename OtherType, typename DeleterType,
		typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TSharedPtr(SharedPointerInternals::TRawPtrProxy<OtherType, DeleterType> Proxy)
		: Object(Proxy.Object)
	{
		if (Proxy.Object)
		{
			Referencer = SharedPointerInternals::TSharedReferencer<Mode>(
				new SharedPointerInternals::TPointerReferenceController<OtherType, DeleterType, Mode>(
					Proxy.Object, std::move(Proxy.Deleter)));
			SharedPointerInternals::EnableSharedFromThis<>(Referencer.Get(), Proxy.Object);
		}
	}

	TSharedPtr(const TSharedPtr& Other) = default;

	TSharedPtr(TSharedPtr&& Other)
		: Object(std::exchange(Other.Object, nullptr))
		, Referencer(std::move(Other.Referencer))
	{
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TSharedPtr(TSharedPtr<OtherType, Mode>&& Other)
		: Object(std::exchange(Other.Object, nullptr))
		, Referencer(std::move(Other.Referencer))
	{
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	TSharedPtr& operator=(const TSharedPtr& Other) = default;

	TSharedPtr& operator=(TSharedPtr&& Other)
	{
		TSharedPtr Taken(std::move(Other));
		std::swap(Object, Taken.Object);
		std::swap(Referencer, Taken.Referencer);
		return *this;
	}

	TSharedPtr& operator=(decltype(nullptr))
	{
		Reset();
		return *this;
	}

	/** The reference to the same object; a null pointer is a programming error. */
	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(Object, Referencer);
	}

	ObjectType* Get() const { return Object; }
	explicit operator bool() const { return Object != nullptr; }
	bool IsValid() const { return Object != nullptr; }

	std::add_lvalue_reference_t<ObjectType> operator*() const
	{
		check(IsValid());
		return *Object;
	}

	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}

	void Reset() { *this = TSharedPtr(); }

	int32 GetSharedReferenceCount() const { return Referencer.GetSharedCount(); }
	bool IsUnique() const { return GetSharedReferenceCount() == 1; }

private:
	template <typename, ESPMode>
	friend class TSharedPtr;
	template <typename, ESPMode>
	friend class TWeakPtr;
	template <typename To, typename From, ESPMode OtherMode>
	friend TSharedPtr<To, OtherMode> StaticCastSharedPtr(const TSharedPtr<From, OtherMode>& Pointer);
	template <typename To, typename From, ESPMode OtherMode>
	friend TSharedPtr<To, OtherMode> ConstCastSharedPtr(const TSharedPtr<From, OtherMode>& Pointer);

	TSharedPtr(ObjectType* InObject, SharedPointerInternals::TSharedReferencer<Mode> InReferencer)
		: Object(InReferencer.Get() ? InObject : nullptr)
		, Referencer(std::move(InReferencer))
	{
	}

	ObjectType* Object = nullptr;
	SharedPointerInternals::TSharedReferencer<Mode> Referencer;
};

/** Watches an object without keeping it alive. */
template <typename ObjectType, ESPMode Mode>
class TWeakPtr
{
public:
	using ElementType = ObjectType;

	TWeakPtr() = default;
	TWeakPtr(decltype(nullptr)) {}
	TWeakPtr(const TWeakPtr& Other) = default;
	TWeakPtr& operator=(const TWeakPtr& Other) = default;

	TWeakPtr(TWeakPtr&& Other)
		: Object(std::exchange(Other.Object, nullptr))
		, Referencer(std::move(Other.Referencer))
	{
	}

	TWeakPtr& operator=(TWeakPtr&& Other)
	{
		TWeakPtr Taken(std::move(Other));
		std::swap(Object, Taken.Object);
		std::swap(Referencer, Taken.Referencer);
		return *this;
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer.Get())
	{
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer.Get())
	{
	}

	template <typename OtherType, typename = SharedPointerInternals::TEnableIfConvertible<OtherType, ObjectType>>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	TWeakPtr& operator=(decltype(nullptr))
	{
		Reset();
		return *this;
	}

	/** The object if it is still alive, otherwise null. */
	TSharedPtr<ObjectType, Mode> Pin() const { return TSharedPtr<ObjectType, Mode>(Object, Referencer.Pin()); }

	bool IsValid() const { return Object != nullptr && Referencer.IsAlive(); }
	void Reset() { *this = TWeakPtr(); }

	/** Whether this watches the object at the address, without a strong reference in between. */
	bool HasSameObject(const void* OtherObject) const { return IsValid() && static_cast<const void*>(Object) == OtherObject; }

	/** By address, so that it stays the same when the object dies. */
	friend uint32 GetTypeHash(const TWeakPtr& Pointer) { return PointerHash(Pointer.Object); }

private:
	template <typename, ESPMode>
	friend class TWeakPtr;
	template <typename, ESPMode>
	friend class TSharedFromThis;

	TWeakPtr(ObjectType* InObject, SharedPointerInternals::TWeakReferencer<Mode> InReferencer)
		: Object(InObject)
		, Referencer(std::move(InReferencer))
	{
	}

	ObjectType* Object = nullptr;
	SharedPointerInternals::TWeakReferencer<Mode> Referencer;
};

/**
 * Base of objects that hand out references to themselves. The references can be taken as soon as the object belongs to a
 * shared pointer: in a widget's Construct, but not in a C++ constructor.
 */
template <typename ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	/** A reference to this object; asking before a shared pointer owns it is a programming error. */
	TSharedRef<ObjectType, Mode> AsShared() { return TSharedRef<ObjectType, Mode>(static_cast<ObjectType*>(this), PinOwner()); }

	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		return TSharedRef<const ObjectType, Mode>(static_cast<const ObjectType*>(this), PinOwner());
	}

	TWeakPtr<ObjectType, Mode> AsWeak() { return TWeakPtr<ObjectType, Mode>(static_cast<ObjectType*>(this), Referencer); }

	TWeakPtr<const ObjectType, Mode> AsWeak() const
	{
		return TWeakPtr<const ObjectType, Mode>(static_cast<const ObjectType*>(this), Referencer);
	}

	/** Whether a shared pointer owns this object and it is not being destroyed. */
	bool DoesSharedInstanceExist() const { return Referencer.IsAlive(); }

protected:
	TSharedFromThis() = default;
	~TSharedFromThis() = default;

	/** A copy is another object: it belongs to nobody yet. */
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }

	/** AsShared as the type that the caller has in hand: SharedThis(this). */
	template <typename OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}

private:
	template <typename OtherType, ESPMode OtherMode>
	friend void SharedPointerInternals::EnableSharedFromThis(
		SharedPointerInternals::TReferenceController<OtherMode>* Controller, const TSharedFromThis<OtherType, OtherMode>* Object);

	void SetReferenceController(SharedPointerInternals::TReferenceController<Mode>* Controller) const
	{
		Referencer = SharedPointerInternals::TWeakReferencer<Mode>(Controller);
	}

	SharedPointerInternals::TSharedReferencer<Mode> PinOwner() const
	{
		SharedPointerInternals::TSharedReferencer<Mode> Owner = Referencer.Pin();
		check(Owner.Get() != nullptr);
		return Owner;
	}

	/** Half of a weak pointer: the address is known, it is this. */
	mutable SharedPointerInternals::TWeakReferencer<Mode> Referencer;
};

/** Makes an object and its reference counts in one allocation. */
template <typename ObjectType, ESPMode Mode = ESPMode::Fast, typename... ArgTypes>
TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	auto* Controller =
		new SharedPointerInternals::TIntrusiveReferenceController<ObjectType, Mode>(std::forward<ArgTypes>(Args)...);
	ObjectType* Object = Controller->GetObject();
	TSharedRef<ObjectType, Mode> Ref(Object, SharedPointerInternals::TSharedReferencer<Mode>(Controller));
	SharedPointerInternals::EnableSharedFromThis<>(
		static_cast<SharedPointerInternals::TReferenceController<Mode>*>(Controller), Object);
	return Ref;
}

/** Hands an object made with new over to the shared reference or pointer that the result is assigned to. */
template <typename ObjectType>
SharedPointerInternals::TRawPtrProxy<ObjectType, SharedPointerInternals::TDefaultDeleter<ObjectType>> MakeShareable(
	ObjectType* Object)
{
	return {Object, {}};
}

/** As above, for an object that ends by a call of Deleter(Object). */
template <typename ObjectType, typename DeleterType>
SharedPointerInternals::TRawPtrProxy<ObjectType, std::decay_t<DeleterType>> MakeShareable(
	ObjectType* Object, DeleterType&& Deleter)
{
	return {Object, std::forward<DeleterType>(Deleter)};
}

template <typename To, typename From, ESPMode Mode>
TSharedRef<To, Mode> StaticCastSharedRef(const TSharedRef<From, Mode>& Ref)
{
	return TSharedRef<To, Mode>(static_cast<To*>(Ref.Object), Ref.Referencer);
}

template <typename To, typename From, ESPMode Mode>
TSharedPtr<To, Mode> StaticCastSharedPtr(const TSharedPtr<From, Mode>& Pointer)
{
	return TSharedPtr<To, Mode>(static_cast<To*>(Pointer.Object), Pointer.Referencer);
}

template <typename To, typename From, ESPMode Mode>
TSharedRef<To, Mode> ConstCastSharedRef(const TSharedRef<From, Mode>& Ref)
{
	return TSharedRef<To, Mode>(const_cast<To*>(Ref.Object), Ref.Referencer);
}

template <typename To, typename From, ESPMode Mode>
TSharedPtr<To, Mode> ConstCastSharedPtr(const TSharedPtr<From, Mode>& Pointer)
{
	return TSharedPtr<To, Mode>(const_cast<To*>(Pointer.Object), Pointer.Referencer);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return &Left.Get() == &Right.Get();
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedRef<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return !(Left == Right);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return Left.Get() == Right.Get();
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return !(Left == Right);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return Left.Get() == &Right.Get();
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return !(Left == Right);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return Right == Left;
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedRef<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return !(Right == Left);
}

template <typename ObjectType, ESPMode Mode>
bool operator==(const TSharedPtr<ObjectType, Mode>& Pointer, decltype(nullptr))
{
	return !Pointer.IsValid();
}

template <typename ObjectType, ESPMode Mode>
bool operator!=(const TSharedPtr<ObjectType, Mode>& Pointer, decltype(nullptr))
{
	return Pointer.IsValid();
}

template <typename ObjectType, ESPMode Mode>
bool operator==(decltype(nullptr), const TSharedPtr<ObjectType, Mode>& Pointer)
{
	return !Pointer.IsValid();
}

template <typename ObjectType, ESPMode Mode>
bool operator!=(decltype(nullptr), const TSharedPtr<ObjectType, Mode>& Pointer)
{
	return Pointer.IsValid();
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, const TWeakPtr<B, Mode>& Right)
{
	return Left.Pin() == Right.Pin();
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TWeakPtr<A, Mode>& Left, const TWeakPtr<B, Mode>& Right)
{
	return !(Left == Right);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return Left.Pin() == Right;
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TWeakPtr<A, Mode>& Left, const TSharedPtr<B, Mode>& Right)
{
	return !(Left == Right);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Left, const TWeakPtr<B, Mode>& Right)
{
	return Right == Left;
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Left, const TWeakPtr<B, Mode>& Right)
{
	return !(Right == Left);
}

template <typename A, typename B, ESPMode Mode>
bool operator==(const TWeakPtr<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return Left.Pin() == Right;
}

template <typename A, typename B, ESPMode Mode>
bool operator!=(const TWeakPtr<A, Mode>& Left, const TSharedRef<B, Mode>& Right)
{
	return !(Left == Right);
}

template <typename ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedRef<ObjectType, Mode>& Ref)
{
	return PointerHash(&Ref.Get());
}

template <typename ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedPtr<ObjectType, Mode>& Pointer)
{
	return PointerHash(Pointer.Get());
}
