#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"

#include <memory>
#include <type_traits>

template <typename T>
using TDefaultDelete = std::default_delete<T>;

/** The only owner of an object. The type may be incomplete where the pointer is declared, but not where it is destroyed. */
template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr
{
public:
	TUniquePtr() = default;
	TUniquePtr(decltype(nullptr)) {}

	explicit TUniquePtr(T* Object)
		: Pointer(Object)
	{
	}

	TUniquePtr(T* Object, Deleter InDeleter)
		: Pointer(Object, std::move(InDeleter))
	{
	}

	template <typename OtherT, typename OtherDeleter, typename = std::enable_if_t<std::is_convertible_v<OtherT*, T*>>>
	TUniquePtr(TUniquePtr<OtherT, OtherDeleter>&& Other)
		: Pointer(std::move(Other.Pointer))
	{
	}

	template <typename OtherT, typename OtherDeleter, typename = std::enable_if_t<std::is_convertible_v<OtherT*, T*>>>
	TUniquePtr& operator=(TUniquePtr<OtherT, OtherDeleter>&& Other)
	{
		Pointer = std::move(Other.Pointer);
		return *this;
	}

	TUniquePtr& operator=(decltype(nullptr))
	{
		Reset();
		return *this;
	}

	bool IsValid() const { return Pointer != nullptr; }
	explicit operator bool() const { return IsValid(); }
	T* Get() const { return Pointer.get(); }
	T& operator*() const { return *Pointer; }
	T* operator->() const { return Pointer.get(); }

	/** Gives the object away; the caller now owns it. */
	T* Release() { return Pointer.release(); }

	/** Destroys the object and takes over another. */
	void Reset(T* Object = nullptr) { Pointer.reset(Object); }

	friend bool operator==(const TUniquePtr& Left, const TUniquePtr& Right) { return Left.Get() == Right.Get(); }
	friend bool operator!=(const TUniquePtr& Left, const TUniquePtr& Right) { return Left.Get() != Right.Get(); }
	friend bool operator==(const TUniquePtr& Left, decltype(nullptr)) { return !Left.IsValid(); }
	friend bool operator!=(const TUniquePtr& Left, decltype(nullptr)) { return Left.IsValid(); }
	friend uint32 GetTypeHash(const TUniquePtr& Owner) { return PointerHash(Owner.Get()); }

private:
	template <typename, typename>
	friend class TUniquePtr;

	std::unique_ptr<T, Deleter> Pointer;
};

template <typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(std::forward<ArgTypes>(Args)...));
}
