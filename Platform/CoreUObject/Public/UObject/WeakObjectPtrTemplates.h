#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

#include <type_traits>

struct FWeakObjectPtr;

/** FWeakObjectPtr for one class. */
template <class T, class TWeakObjectPtrBase>
struct TWeakObjectPtr : private TWeakObjectPtrBase
{
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(std::nullptr_t) {}
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TWeakObjectPtr(U* Object)
		: TWeakObjectPtrBase(Object)
	{
	}
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TWeakObjectPtr(const TWeakObjectPtr<U, TWeakObjectPtrBase>& Other)
		: TWeakObjectPtrBase(reinterpret_cast<const TWeakObjectPtrBase&>(Other))
	{
	}

	T* Get() const { return static_cast<T*>(TWeakObjectPtrBase::Get()); }
	T* Get(bool bEvenIfPendingKill) const { return static_cast<T*>(TWeakObjectPtrBase::Get(bEvenIfPendingKill)); }
	T& operator*() const { return *Get(); }
	T* operator->() const
	{
		T* const Object = Get();
		check(Object);
		return Object;
	}
	explicit operator bool() const { return IsValid(); }
	using TWeakObjectPtrBase::IsExplicitlyNull;
	using TWeakObjectPtrBase::IsStale;
	using TWeakObjectPtrBase::IsValid;
	using TWeakObjectPtrBase::Reset;

	friend bool operator==(const TWeakObjectPtr& Left, const TWeakObjectPtr& Right)
	{
		return static_cast<const TWeakObjectPtrBase&>(Left) == static_cast<const TWeakObjectPtrBase&>(Right);
	}
	friend bool operator!=(const TWeakObjectPtr& Left, const TWeakObjectPtr& Right) { return !(Left == Right); }
	friend bool operator==(const TWeakObjectPtr& Left, const T* Right) { return Left.Get() == Right; }
	friend bool operator==(const T* Left, const TWeakObjectPtr& Right) { return Left == Right.Get(); }
	friend bool operator==(const TWeakObjectPtr& Left, std::nullptr_t) { return !Left.IsValid(); }
	friend bool operator!=(const TWeakObjectPtr& Left, const T* Right) { return Left.Get() != Right; }
	friend bool operator!=(const TWeakObjectPtr& Left, std::nullptr_t) { return Left.IsValid(); }
	friend uint32 GetTypeHash(const TWeakObjectPtr& Pointer)
	{
		return GetTypeHash(static_cast<const TWeakObjectPtrBase&>(Pointer));
	}
};

template <class T, class TWeakObjectPtrBase = FWeakObjectPtr>
struct TWeakObjectPtr;
