#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/DelegateInstancesImpl.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"

template <typename FuncType>
class TDelegate;

template <typename FuncType>
class TMulticastDelegate;

/**
 * Calls one function, method or lambda that is bound at run time, or nothing. Further arguments ("payload") can be bound
 * with it; they are passed after those of the call.
 *
 * The binding lives on the heap, in one allocation. What is called must not destroy the delegate that is executing it: a
 * caller that cannot know executes a copy.
 */
template <typename Ret, typename... ArgTypes>
class TDelegate<Ret(ArgTypes...)>
{
public:
	using RetValType = Ret;
	using TFuncType = Ret(ArgTypes...);

	template <typename... VarTypes>
	using TFuncPtr = Ret (*)(ArgTypes..., VarTypes...);

	template <typename UserClass, typename... VarTypes>
	using TMethodPtr = typename TMemFunPtrType<false, UserClass, Ret(ArgTypes..., VarTypes...)>::Type;

	template <typename UserClass, typename... VarTypes>
	using TConstMethodPtr = typename TMemFunPtrType<true, UserClass, Ret(ArgTypes..., VarTypes...)>::Type;

	TDelegate() = default;
	TDelegate(decltype(nullptr)) {}

	TDelegate(const TDelegate& Other)
		: Binding(Other.Binding ? Other.Binding->Clone() : nullptr)
	{
	}

	TDelegate(TDelegate&& Other)
		: Binding(std::exchange(Other.Binding, nullptr))
	{
	}

	~TDelegate() { delete Binding; }

	TDelegate& operator=(TDelegate Other)
	{
		std::swap(Binding, Other.Binding);
		return *this;
	}

	/** Binds a function. */
	template <typename... VarTypes>
	static TDelegate CreateStatic(TFuncPtr<VarTypes...> Function, VarTypes... Vars)
	{
		check(Function != nullptr);
		return Make(DelegateInternals::FNoTarget(), Function, std::move(Vars)...);
	}

	/** Binds a lambda or other functor, of which it keeps a copy. What the functor refers to must outlive the binding. */
	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& Functor, VarTypes... Vars)
	{
		return Make(DelegateInternals::FNoTarget(), std::forward<FunctorType>(Functor), std::move(Vars)...);
	}

	/** Binds a lambda that is called only while a UObject lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	static TDelegate CreateWeakLambda(const UserClass* Object, FunctorType&& Functor, VarTypes... Vars)
	{
		return Make(DelegateInternals::TObjectTarget<const UserClass, false>{Object}, std::forward<FunctorType>(Functor),
			std::move(Vars)...);
	}

	/** Binds a method of an object that must outlive the binding. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		check(Object != nullptr && Method != nullptr);
		return Make(DelegateInternals::TRawTarget<UserClass>{Object}, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		check(Object != nullptr && Method != nullptr);
		return Make(DelegateInternals::TRawTarget<const UserClass>{Object}, Method, std::move(Vars)...);
	}

	/** Binds a method of an object that shared pointers own; the binding does not keep it alive. */
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	static TDelegate CreateSP(
		const TSharedRef<UserClass, Mode>& Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		check(Method != nullptr);
		return Make(DelegateInternals::TSharedTarget<UserClass, Mode>{Object}, Method, std::move(Vars)...);
	}

	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	static TDelegate CreateSP(
		const TSharedRef<UserClass, Mode>& Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		check(Method != nullptr);
		return Make(DelegateInternals::TSharedTarget<const UserClass, Mode>{Object}, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(Object->AsShared()), Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return CreateSP(StaticCastSharedRef<const UserClass>(Object->AsShared()), Method, std::move(Vars)...);
	}

	/** Binds a method of a UObject; the binding does not keep it alive. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		check(Method != nullptr);
		return Make(DelegateInternals::TObjectTarget<UserClass, true>{Object}, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		check(Method != nullptr);
		return Make(DelegateInternals::TObjectTarget<const UserClass, true>{Object}, Method, std::move(Vars)...);
	}

	template <typename... VarTypes>
	void BindStatic(TFuncPtr<VarTypes...> Function, VarTypes... Vars)
	{
		*this = CreateStatic(Function, std::move(Vars)...);
	}

	template <typename FunctorType, typename... VarTypes>
	void BindLambda(FunctorType&& Functor, VarTypes... Vars)
	{
		*this = CreateLambda(std::forward<FunctorType>(Functor), std::move(Vars)...);
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
	void BindWeakLambda(const UserClass* Object, FunctorType&& Functor, VarTypes... Vars)
	{
		*this = CreateWeakLambda(Object, std::forward<FunctorType>(Functor), std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	void BindRaw(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateRaw(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	void BindRaw(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateRaw(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	void BindSP(const TSharedRef<UserClass, Mode>& Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateSP(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	void BindSP(const TSharedRef<UserClass, Mode>& Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateSP(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	void BindSP(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateSP(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	void BindSP(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateSP(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	void BindUObject(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateUObject(Object, Method, std::move(Vars)...);
	}

	template <typename UserClass, typename... VarTypes>
	void BindUObject(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		*this = CreateUObject(Object, Method, std::move(Vars)...);
	}

	void Unbind() { *this = TDelegate(); }

	/** Whether executing would call something: bound, and the object, if bound weakly, still alive. */
	bool IsBound() const { return Binding != nullptr && Binding->IsSafeToExecute(); }

	bool IsBoundToObject(const void* Object) const { return Binding != nullptr && Binding->HasSameObject(Object); }

	FDelegateHandle GetHandle() const { return Binding ? Binding->GetHandle() : FDelegateHandle(); }

	/** Calls what is bound. An unbound delegate is a programming error. */
	Ret Execute(ArgTypes... Args) const
	{
		check(Binding != nullptr);
		return Binding->Execute(std::forward<ArgTypes>(Args)...);
	}

	/** Calls what is bound, if anything. @return Whether it called. */
	bool ExecuteIfBound(ArgTypes... Args) const
	{
		static_assert(std::is_void_v<Ret>, "ExecuteIfBound would lose the return value");
		return Binding != nullptr && Binding->ExecuteIfSafe(std::forward<ArgTypes>(Args)...);
	}

private:
	template <typename>
	friend class TMulticastDelegate;

	template <typename TargetType, typename FunctorType, typename... VarTypes>
	static TDelegate Make(TargetType Target, FunctorType&& Functor, VarTypes&&... Vars)
	{
		using FBinding =
			DelegateInternals::TBindingTo<TargetType, std::decay_t<FunctorType>, std::tuple<VarTypes...>, Ret, ArgTypes...>;
		TDelegate Delegate;
		Delegate.Binding = new FBinding(std::move(Target), std::forward<FunctorType>(Functor), std::move(Vars)...);
		return Delegate;
	}

	DelegateInternals::TBinding<Ret, ArgTypes...>* Binding = nullptr;
};

/**
 * Calls any number of bindings, in no promised order. A broadcast does not call what is added while it runs; bindings may
 * be removed at any time, also by themselves. Bindings whose weak object is gone drop out silently.
 */
template <typename... ArgTypes>
class TMulticastDelegate<void(ArgTypes...)>
{
public:
	using FDelegate = TDelegate<void(ArgTypes...)>;

	TMulticastDelegate() = default;

	TMulticastDelegate(const TMulticastDelegate& Other)
		: InvocationList(Other.InvocationList)
	{
		Compact();
	}

	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (this != &Other)
		{
			Clear();
			for (const FDelegate& Delegate : Other.InvocationList)
			{
				Add(Delegate);
			}
		}
		return *this;
	}

	/** @return The handle for Remove; invalid if the delegate was not bound. */
	FDelegateHandle Add(FDelegate Delegate)
	{
		if (!Delegate.IsBound() || Delegate.Binding->IsRetired())
		{
			return FDelegateHandle();
		}
		if (InvocationList.Num() >= CompactionThreshold)
		{
			Compact();
			CompactionThreshold = 2 * InvocationList.Num() + 2;
		}
		const FDelegateHandle Handle = Delegate.GetHandle();
		InvocationList.Add(MoveTemp(Delegate));
		return Handle;
	}

	template <typename... VarTypes>
	FDelegateHandle AddStatic(typename FDelegate::template TFuncPtr<VarTypes...> Function, VarTypes... Vars)
	{
		return Add(FDelegate::CreateStatic(Function, std::move(Vars)...));
	}

	template <typename FunctorType, typename... VarTypes>
	FDelegateHandle AddLambda(FunctorType&& Functor, VarTypes... Vars)
	{
		return Add(FDelegate::CreateLambda(std::forward<FunctorType>(Functor), std::move(Vars)...));
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
	FDelegateHandle AddWeakLambda(const UserClass* Object, FunctorType&& Functor, VarTypes... Vars)
	{
		return Add(FDelegate::CreateWeakLambda(Object, std::forward<FunctorType>(Functor), std::move(Vars)...));
	}

	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddRaw(
		UserClass* Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateRaw(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddRaw(
		const UserClass* Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateRaw(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	FDelegateHandle AddSP(const TSharedRef<UserClass, Mode>& Object,
		typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateSP(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	FDelegateHandle AddSP(const TSharedRef<UserClass, Mode>& Object,
		typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateSP(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddSP(
		UserClass* Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateSP(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddSP(
		const UserClass* Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateSP(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddUObject(
		UserClass* Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateUObject(Object, Method, std::move(Vars)...));
	}

	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddUObject(
		const UserClass* Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateUObject(Object, Method, std::move(Vars)...));
	}

	/** @return Whether there was such a binding. */
	bool Remove(FDelegateHandle Handle)
	{
		return Handle.IsValid() &&
			RetireAll([Handle](const IDelegateInstance& Instance) { return Instance.GetHandle() == Handle; }) > 0;
	}

	/** Removes all bindings to an object. @return How many there were. */
	int32 RemoveAll(const void* Object)
	{
		return RetireAll([Object](const IDelegateInstance& Instance) { return Instance.HasSameObject(Object); });
	}

	void Clear()
	{
		RetireAll([](const IDelegateInstance&) { return true; });
	}

	/** Whether a broadcast would call anything. */
	bool IsBound() const
	{
		for (const FDelegate& Delegate : InvocationList)
		{
			if (!IsDead(Delegate))
			{
				return true;
			}
		}
		return false;
	}

	bool IsBoundToObject(const void* Object) const
	{
		for (const FDelegate& Delegate : InvocationList)
		{
			if (!IsDead(Delegate) && Delegate.IsBoundToObject(Object))
			{
				return true;
			}
		}
		return false;
	}

	void Broadcast(ArgTypes... Args) const
	{
		bool bFoundDead = false;
		++LockCount;
		// By index: a binding may add others, for which the list moves.
		for (int32 Index = 0, Num = InvocationList.Num(); Index < Num; ++Index)
		{
			const auto* Binding = InvocationList[Index].Binding;
			bFoundDead |= Binding->IsRetired() || !Binding->ExecuteIfSafe(Args...) || Binding->IsRetired();
		}
		--LockCount;

		if (bFoundDead)
		{
			const_cast<TMulticastDelegate*>(this)->Compact();
		}
	}

private:
	static bool IsDead(const FDelegate& Delegate)
	{
		return Delegate.Binding->IsRetired() || !Delegate.Binding->IsSafeToExecute();
	}

	template <typename PredicateType>
	int32 RetireAll(PredicateType Predicate)
	{
		int32 NumRetired = 0;
		for (FDelegate& Delegate : InvocationList)
		{
			if (!Delegate.Binding->IsRetired() && Predicate(*Delegate.Binding))
			{
				Delegate.Binding->Retire();
				++NumRetired;
			}
		}
		if (NumRetired > 0)
		{
			Compact();
		}
		return NumRetired;
	}

	/** Destroys the bindings that are out of use, unless a broadcast is running that may be inside one of them. */
	void Compact()
	{
		if (LockCount > 0)
		{
			return;
		}

		// They end after the list is in order again, since their ends may come back here.
		TArray<FDelegate> Dead;
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			if (IsDead(InvocationList[Index]))
			{
				Dead.Add(MoveTemp(InvocationList[Index]));
				InvocationList.RemoveAt(Index);
			}
		}
	}

	TArray<FDelegate> InvocationList;
	int32 CompactionThreshold = 2;
	mutable int32 LockCount = 0;
};
