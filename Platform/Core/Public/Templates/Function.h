#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

#include <functional>
#include <type_traits>
#include <utility>

template <typename FuncType>
class TFunction;

template <typename FuncType>
class TUniqueFunction;

template <typename FuncType>
class TFunctionRef;

namespace FunctionInternals
{
/** A callable on the heap behind one pointer, so that its owner may be moved by plain memory copy. */
template <typename Ret, typename... ArgTypes>
struct TCallable
{
	virtual ~TCallable() = default;
	virtual Ret Call(ArgTypes... Args) = 0;
	virtual TCallable* Clone() const = 0;
};

template <typename FunctorType, bool bCopyable, typename Ret, typename... ArgTypes>
struct TFunctorCallable final : TCallable<Ret, ArgTypes...>
{
	template <typename OtherType>
	explicit TFunctorCallable(OtherType&& InFunctor)
		: Functor(std::forward<OtherType>(InFunctor))
	{
	}

	virtual Ret Call(ArgTypes... Args) override
	{
		return static_cast<Ret>(std::invoke(Functor, std::forward<ArgTypes>(Args)...));
	}

	virtual TCallable<Ret, ArgTypes...>* Clone() const override
	{
		if constexpr (bCopyable)
		{
			return new TFunctorCallable(Functor);
		}
		else
		{
			return nullptr;
		}
	}

	FunctorType Functor;
};

template <typename T>
inline constexpr bool IsFunctionWrapper = false;
template <typename T>
inline constexpr bool IsFunctionWrapper<TFunction<T>> = true;
template <typename T>
inline constexpr bool IsFunctionWrapper<TUniqueFunction<T>> = true;
template <typename T>
inline constexpr bool IsFunctionWrapper<TFunctionRef<T>> = true;

/** An empty function or a null function pointer makes an empty function of it; anything else can be called. */
template <typename T>
bool IsSet(const T& Functor)
{
	if constexpr (std::is_pointer_v<T> || std::is_member_pointer_v<T>)
	{
		return Functor != nullptr;
	}
	else if constexpr (IsFunctionWrapper<T>)
	{
		return static_cast<bool>(Functor);
	}
	else
	{
		return true;
	}
}

template <typename FunctorType, typename Self, typename Ret, typename... ArgTypes>
using TEnableIfCallable = std::enable_if_t<!std::is_same_v<std::decay_t<FunctorType>, Self> &&
	std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ArgTypes...>>;
}

/** A copyable function value. Calling an empty one is a programming error. */
template <typename Ret, typename... ArgTypes>
class TFunction<Ret(ArgTypes...)>
{
public:
	TFunction(decltype(nullptr) = nullptr) {}

	template <typename FunctorType, typename = FunctionInternals::TEnableIfCallable<FunctorType, TFunction, Ret, ArgTypes...>>
	TFunction(FunctorType&& Functor)
	{
		using FDecayed = std::decay_t<FunctorType>;
		if (FunctionInternals::IsSet<FDecayed>(Functor))
		{
			Callable =
				new FunctionInternals::TFunctorCallable<FDecayed, true, Ret, ArgTypes...>(std::forward<FunctorType>(Functor));
		}
	}

	TFunction(const TFunction& Other)
		: Callable(Other.Callable ? Other.Callable->Clone() : nullptr)
	{
	}

	TFunction(TFunction&& Other)
		: Callable(std::exchange(Other.Callable, nullptr))
	{
	}

	~TFunction() { delete Callable; }

	TFunction& operator=(TFunction Other)
	{
		std::swap(Callable, Other.Callable);
		return *this;
	}

	Ret operator()(ArgTypes... Args) const
	{
		check(Callable != nullptr);
		return Callable->Call(std::forward<ArgTypes>(Args)...);
	}

	explicit operator bool() const { return Callable != nullptr; }
	bool IsSet() const { return Callable != nullptr; }
	void Reset() { *this = nullptr; }

	friend bool operator==(const TFunction& Function, decltype(nullptr)) { return !Function.IsSet(); }
	friend bool operator!=(const TFunction& Function, decltype(nullptr)) { return Function.IsSet(); }

private:
	FunctionInternals::TCallable<Ret, ArgTypes...>* Callable = nullptr;
};

/** A function value that can only be moved, so that it may own what cannot be copied. */
template <typename Ret, typename... ArgTypes>
class TUniqueFunction<Ret(ArgTypes...)>
{
public:
	TUniqueFunction(decltype(nullptr) = nullptr) {}

	template <typename FunctorType,
		typename = FunctionInternals::TEnableIfCallable<FunctorType, TUniqueFunction, Ret, ArgTypes...>>
	TUniqueFunction(FunctorType&& Functor)
	{
		using FDecayed = std::decay_t<FunctorType>;
		if (FunctionInternals::IsSet<FDecayed>(Functor))
		{
			Callable =
				new FunctionInternals::TFunctorCallable<FDecayed, false, Ret, ArgTypes...>(std::forward<FunctorType>(Functor));
		}
	}

	TUniqueFunction(TUniqueFunction&& Other)
		: Callable(std::exchange(Other.Callable, nullptr))
	{
	}

	~TUniqueFunction() { delete Callable; }

	TUniqueFunction& operator=(TUniqueFunction&& Other)
	{
		TUniqueFunction Taken(std::move(Other));
		std::swap(Callable, Taken.Callable);
		return *this;
	}

	Ret operator()(ArgTypes... Args) const
	{
		check(Callable != nullptr);
		return Callable->Call(std::forward<ArgTypes>(Args)...);
	}

	explicit operator bool() const { return Callable != nullptr; }
	bool IsSet() const { return Callable != nullptr; }
	void Reset() { *this = nullptr; }

private:
	FunctionInternals::TCallable<Ret, ArgTypes...>* Callable = nullptr;
};

/** Refers to a callable of the caller for the length of a call. For parameters only; it owns nothing. */
template <typename Ret, typename... ArgTypes>
class TFunctionRef<Ret(ArgTypes...)>
{
public:
	template <typename FunctorType,
		typename = std::enable_if_t<!std::is_same_v<std::decay_t<FunctorType>, TFunctionRef> &&
			std::is_invocable_r_v<Ret, std::remove_reference_t<FunctorType>&, ArgTypes...>>>
	TFunctionRef(FunctorType&& Functor)
	{
		using FFunctor = std::remove_reference_t<FunctorType>;
		if constexpr (std::is_function_v<FFunctor>)
		{
			Bind(&Functor);
		}
		else if constexpr (std::is_pointer_v<FFunctor>)
		{
			check(Functor != nullptr);
			Bind(Functor);
		}
		else
		{
			check(FunctionInternals::IsSet<std::decay_t<FunctorType>>(Functor));
			Object = const_cast<void*>(static_cast<const void*>(std::addressof(Functor)));
			Caller = [](void* Target, ArgTypes... Args) -> Ret
			{
				return static_cast<Ret>((*static_cast<FFunctor*>(Target))(std::forward<ArgTypes>(Args)...));
			};
		}
	}

	Ret operator()(ArgTypes... Args) const { return Caller(Object, std::forward<ArgTypes>(Args)...); }

	/** For code that handles all function types alike; always true. */
	explicit operator bool() const { return true; }

private:
	template <typename FunctionPointer>
	void Bind(FunctionPointer Function)
	{
		Object = reinterpret_cast<void*>(Function);
		Caller = [](void* Target, ArgTypes... Args) -> Ret
		{
			return static_cast<Ret>(reinterpret_cast<FunctionPointer>(Target)(std::forward<ArgTypes>(Args)...));
		};
	}

	void* Object;
	Ret (*Caller)(void*, ArgTypes...);
};
