#pragma once

#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <type_traits>

/** The object as a To, null if it is none. */
template <typename To, typename From>
FORCEINLINE auto Cast(From* Src)
{
	using FResult = std::conditional_t<std::is_const_v<From>, const To, To>;
	return Src && Src->IsA(To::StaticClass()) ? static_cast<FResult*>(Src) : static_cast<FResult*>(nullptr);
}

template <typename To, typename From>
FORCEINLINE To* Cast(const TObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}

/** As Cast, where anything else (null too, unless allowed) is a programming error. */
template <typename To, typename From>
FORCEINLINE auto CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	using FResult = std::conditional_t<std::is_const_v<From>, const To, To>;
	FResult* const Result = Cast<To>(Src);
	checkf(Result || (!Src && CheckType == ECastCheckedType::NullAllowed), TEXT("Cast of %s to %s failed"), *GetFullNameSafe(Src),
		*To::StaticClass()->GetName());
	return Result;
}

/** Only an object of exactly that class. */
template <typename T>
FORCEINLINE T* ExactCast(UObject* Src)
{
	return Src && Src->GetClass() == T::StaticClass() ? static_cast<T*>(Src) : nullptr;
}
