#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** A reflected member that refers to an object. It behaves, and lies in memory, as the plain pointer. */
template <typename T>
struct TObjectPtr
{
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(std::nullptr_t) {}
	TObjectPtr(T* Object)
		: Pointer(Object)
	{
	}

	T* Get() const { return Pointer; }
	operator T*() const { return Pointer; }
	T* operator->() const { return Pointer; }
	T& operator*() const { return *Pointer; }

private:
	T* Pointer = nullptr;
};
