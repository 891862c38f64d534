#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

namespace AttributeInternals
{
template <typename T, typename = void>
inline constexpr bool HasIdenticalTo = false;
template <typename T>
inline constexpr bool HasIdenticalTo<T, std::void_t<decltype(std::declval<const T&>().IdenticalTo(std::declval<const T&>()))>> =
	true;

/** Values that tell identity apart from equality are compared by identity, which is cheap. */
template <typename T>
bool AreIdentical(const T& Left, const T& Right)
{
	if constexpr (HasIdenticalTo<T>)
	{
		return Left.IdenticalTo(Right);
	}
	else
	{
		return Left == Right;
	}
}
}

/**
 * A value that is either stored or fetched by a bound getter each time that it is asked for. Setting a value replaces a
 * binding. A binding costs one allocation, no binding one null pointer.
 */
template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TDelegate<ObjectType()>;

	/** Not set; Get() gives the type's default value. */
	TAttribute() = default;

	template <typename OtherType, typename = std::enable_if_t<std::is_constructible_v<ObjectType, const OtherType&>>>
	TAttribute(const OtherType& InValue)
		: Value(InValue)
		, bIsSet(true)
	{
	}

	TAttribute(ObjectType&& InValue)
		: Value(std::move(InValue))
		, bIsSet(true)
	{
	}

	/** Bound to a method of an object that shared pointers own. */
	template <typename SourceType, ESPMode Mode>
	TAttribute(const TSharedRef<SourceType, Mode>& Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
		: bIsSet(true)
		, Getter(FGetter::CreateSP(Object, Method))
	{
	}

	template <typename SourceType>
	TAttribute(SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
		: bIsSet(true)
		, Getter(FGetter::CreateSP(Object, Method))
	{
	}

	static TAttribute Create(FGetter InGetter)
	{
		TAttribute Attribute;
		Attribute.Bind(std::move(InGetter));
		return Attribute;
	}

	static TAttribute Create(TFunction<ObjectType()> Function) { return CreateLambda(std::move(Function)); }
	static TAttribute CreateStatic(typename FGetter::template TFuncPtr<> Function)
	{
		return Create(FGetter::CreateStatic(Function));
	}

	template <typename LambdaType>
	static TAttribute CreateLambda(LambdaType&& Lambda)
	{
		return Create(FGetter::CreateLambda(std::forward<LambdaType>(Lambda)));
	}

	template <typename SourceType>
	static TAttribute CreateRaw(const SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
	{
		return Create(FGetter::CreateRaw(Object, Method));
	}

	template <typename SourceType>
	static TAttribute CreateSP(const SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
	{
		return Create(FGetter::CreateSP(Object, Method));
	}

	template <typename OtherType, typename = std::enable_if_t<std::is_constructible_v<ObjectType, const OtherType&>>>
	void Set(const OtherType& NewValue)
	{
		Value = ObjectType(NewValue);
		bIsSet = true;
		Getter.Unbind();
	}

	void Set(ObjectType&& NewValue)
	{
		Value = std::move(NewValue);
		bIsSet = true;
		Getter.Unbind();
	}

	void Bind(FGetter InGetter)
	{
		bIsSet = true;
		Getter = std::move(InGetter);
	}

	void BindStatic(typename FGetter::template TFuncPtr<> Function) { Bind(FGetter::CreateStatic(Function)); }

	template <typename LambdaType>
	void BindLambda(LambdaType&& Lambda)
	{
		Bind(FGetter::CreateLambda(std::forward<LambdaType>(Lambda)));
	}

	template <typename SourceType>
	void BindRaw(const SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
	{
		Bind(FGetter::CreateRaw(Object, Method));
	}

	template <typename SourceType, ESPMode Mode>
	void BindSP(const TSharedRef<SourceType, Mode>& Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
	{
		Bind(FGetter::CreateSP(Object, Method));
	}

	template <typename SourceType>
	void BindSP(const SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
	{
		Bind(FGetter::CreateSP(Object, Method));
	}

	template <typename SourceType>
	void BindUObject(const SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
	{
		Bind(FGetter::CreateUObject(Object, Method));
	}

	void Unbind()
	{
		Getter.Unbind();
		bIsSet = false;
	}

	/** Whether a value was stored or a getter bound. */
	bool IsSet() const { return bIsSet; }

	bool IsBound() const { return Getter.IsBound(); }

	/** The value; a bound getter is asked for it. The reference holds until the next call. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

	/** As Get, or the given value if nothing was ever set. */
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

	const FGetter& GetBinding() const { return Getter; }

	/** Whether both have the same binding, or both none and the same value. */
	bool IdenticalTo(const TAttribute& Other) const
	{
		if (IsBound() || Other.IsBound())
		{
			return IsBound() == Other.IsBound() && Getter.GetHandle() == Other.Getter.GetHandle();
		}
		return IsSet() == Other.IsSet() && AttributeInternals::AreIdentical(Value, Other.Value);
	}

private:
	mutable ObjectType Value{};
	bool bIsSet = false;
	FGetter Getter;
};

/** An attribute of the type that the lambda returns. */
template <typename LambdaType>
auto MakeAttributeLambda(LambdaType&& Lambda)
{
	return TAttribute<std::decay_t<decltype(Lambda())>>::CreateLambda(std::forward<LambdaType>(Lambda));
}
