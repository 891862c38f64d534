#pragma once

#include "CoreTypes.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"

#include <tuple>
#include <type_traits>
#include <utility>

struct FWeakObjectPtr;
template <class T, class TWeakObjectPtrBase>
struct TWeakObjectPtr;

/** The type of a pointer to a member function: TMemFunPtrType<bConst, Class, Ret(Args...)>::Type. */
template <bool bConst, typename Class, typename FuncType>
struct TMemFunPtrType;

template <typename Class, typename Ret, typename... ArgTypes>
struct TMemFunPtrType<false, Class, Ret(ArgTypes...)>
{
	using Type = Ret (Class::*)(ArgTypes...);
};

template <typename Class, typename Ret, typename... ArgTypes>
struct TMemFunPtrType<true, Class, Ret(ArgTypes...)>
{
	using Type = Ret (Class::*)(ArgTypes...) const;
};

namespace DelegateInternals
{
/** A binding as a delegate of one signature sees it. */
template <typename Ret, typename... ArgTypes>
class TBinding : public IDelegateInstance
{
public:
	/** Calls what is bound; a dead weak object is a programming error. */
	virtual Ret Execute(ArgTypes... Args) const = 0;

	/** Calls what is bound unless its object is gone. @return Whether it called. */
	virtual bool ExecuteIfSafe(ArgTypes... Args) const = 0;

	virtual TBinding* Clone() const = 0;
};

// What a binding is bound to. Hold() keeps the object for the length of a call, and is false once it is gone.

struct FNoTarget
{
	static constexpr bool bCallsMember = false;
	bool Hold() const { return true; }
	const void* Get() const { return nullptr; }
};

template <typename UserClass>
struct TRawTarget
{
	static constexpr bool bCallsMember = true;
	UserClass* Hold() const { return Object; }
	const void* Get() const { return Object; }

	UserClass* Object;
};

template <typename UserClass, ESPMode Mode>
struct TSharedTarget
{
	static constexpr bool bCallsMember = true;
	TSharedPtr<UserClass, Mode> Hold() const { return Object.Pin(); }
	const void* Get() const { return Object.Pin().Get(); }

	TWeakPtr<UserClass, Mode> Object;
};

template <typename UserClass, bool bInCallsMember>
struct TObjectTarget
{
	static constexpr bool bCallsMember = bInCallsMember;
	UserClass* Hold() const { return Object.Get(); }
	const void* Get() const { return Object.Get(); }

	TWeakObjectPtr<UserClass, FWeakObjectPtr> Object;
};

template <typename TargetType, typename FunctorType, typename PayloadType, typename Ret, typename... ArgTypes>
class TBindingTo final : public TBinding<Ret, ArgTypes...>
{
public:
	template <typename OtherFunctor, typename... VarTypes>
	TBindingTo(TargetType InTarget, OtherFunctor&& InFunctor, VarTypes&&... Vars)
		: Target(std::move(InTarget))
		, Functor(std::forward<OtherFunctor>(InFunctor))
		, Payload(std::forward<VarTypes>(Vars)...)
	{
	}

	virtual const void* GetBoundObject() const override { return Target.Get(); }
	virtual bool IsSafeToExecute() const override { return static_cast<bool>(Target.Hold()); }

	virtual Ret Execute(ArgTypes... Args) const override
	{
		const auto Held = Target.Hold();
		check(static_cast<bool>(Held));
		return Call(Held, std::forward<ArgTypes>(Args)...);
	}

	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		const auto Held = Target.Hold();
		if (!Held)
		{
			return false;
		}
		Call(Held, std::forward<ArgTypes>(Args)...);
		return true;
	}

	virtual TBinding<Ret, ArgTypes...>* Clone() const override { return new TBindingTo(*this); }

private:
	template <typename HeldType>
	Ret Call(const HeldType& Held, ArgTypes... Args) const
	{
		return std::apply(
			[&](const auto&... Vars) -> Ret
			{
				if constexpr (TargetType::bCallsMember)
				{
					return ((*Held).*Functor)(std::forward<ArgTypes>(Args)..., Vars...);
				}
				else
				{
					return static_cast<Ret>(Functor(std::forward<ArgTypes>(Args)..., Vars...));
				}
			},
			Payload);
	}

	TargetType Target;
	mutable FunctorType Functor;
	PayloadType Payload;
};
}
