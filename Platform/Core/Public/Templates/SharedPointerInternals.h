#pragma once

#include "CoreTypes.h"
#include "Templates/SharedPointerFwd.h"

#include <atomic>
#include <new>
#include <type_traits>
#include <utility>

namespace SharedPointerInternals
{
/**
 * Counts the references of one object. The object dies with its last shared reference, the controller with its last weak
 * one; all shared references together hold one weak reference.
 */
template <ESPMode Mode>
class TReferenceController
{
public:
	TReferenceController() = default;
	TReferenceController(const TReferenceController&) = delete;
	TReferenceController& operator=(const TReferenceController&) = delete;
	virtual ~TReferenceController() = default;

	int32 GetSharedCount() const { return SharedCount; }

	void AddShared() { ++SharedCount; }

	/** Takes a shared reference only if the object is still alive. */
	bool AddSharedIfAlive()
	{
		if constexpr (Mode == ESPMode::ThreadSafe)
		{
			int32 Count = SharedCount.load();
			while (Count > 0)
			{
				if (SharedCount.compare_exchange_weak(Count, Count + 1))
				{
					return true;
				}
			}
			return false;
		}
		else
		{
			if (SharedCount == 0)
			{
				return false;
			}
			++SharedCount;
			return true;
		}
	}

	void ReleaseShared()
	{
		if (--SharedCount == 0)
		{
			DestroyObject();
			ReleaseWeak();
		}
	}

	void AddWeak() { ++WeakCount; }

	void ReleaseWeak()
	{
		if (--WeakCount == 0)
		{
			delete this;
		}
	}

private:
	virtual void DestroyObject() = 0;

	using FCount = std::conditional_t<Mode == ESPMode::ThreadSafe, std::atomic<int32>, int32>;
	FCount SharedCount{1};
	FCount WeakCount{1};
};

/** The controller of an object that was allocated on its own. */
template <typename ObjectType, typename DeleterType, ESPMode Mode>
class TPointerReferenceController final : public TReferenceController<Mode>
{
public:
	TPointerReferenceController(ObjectType* InObject, DeleterType&& InDeleter)
		: Object(InObject)
		, Deleter(std::move(InDeleter))
	{
	}

private:
	virtual void DestroyObject() override { Deleter(Object); }

	ObjectType* Object;
	DeleterType Deleter;
};

/** The controller of an object that lives in the same allocation. */
template <typename ObjectType, ESPMode Mode>
class TIntrusiveReferenceController final : public TReferenceController<Mode>
{
public:
	template <typename... ArgTypes>
	explicit TIntrusiveReferenceController(ArgTypes&&... Args)
	{
		::new (static_cast<void*>(Storage)) ObjectType(std::forward<ArgTypes>(Args)...);
	}

	ObjectType* GetObject() { return std::launder(reinterpret_cast<ObjectType*>(Storage)); }

private:
	virtual void DestroyObject() override { GetObject()->~ObjectType(); }

	alignas(ObjectType) unsigned char Storage[sizeof(ObjectType)];
};

template <typename ObjectType>
struct TDefaultDeleter
{
	void operator()(ObjectType* Object) const { delete Object; }
};

/** Holds one shared reference, or none. */
template <ESPMode Mode>
class TSharedReferencer
{
public:
	TSharedReferencer() = default;

	/** Takes over the reference that the caller owns. */
	explicit TSharedReferencer(TReferenceController<Mode>* InController)
		: Controller(InController)
	{
	}

	TSharedReferencer(const TSharedReferencer& Other)
		: Controller(Other.Controller)
	{
		if (Controller)
		{
			Controller->AddShared();
		}
	}

	TSharedReferencer(TSharedReferencer&& Other)
		: Controller(std::exchange(Other.Controller, nullptr))
	{
	}

	~TSharedReferencer()
	{
		if (Controller)
		{
			Controller->ReleaseShared();
		}
	}

	TSharedReferencer& operator=(TSharedReferencer Other)
	{
		std::swap(Controller, Other.Controller);
		return *this;
	}

	TReferenceController<Mode>* Get() const { return Controller; }
	int32 GetSharedCount() const { return Controller ? Controller->GetSharedCount() : 0; }

private:
	TReferenceController<Mode>* Controller = nullptr;
};

/** Holds one weak reference, or none. */
template <ESPMode Mode>
class TWeakReferencer
{
public:
	TWeakReferencer() = default;

	explicit TWeakReferencer(TReferenceController<Mode>* InController)
		: Controller(InController)
	{
		if (Controller)
		{
			Controller->AddWeak();
		}
	}

	TWeakReferencer(const TWeakReferencer& Other)
		: TWeakReferencer(Other.Controller)
	{
	}

	TWeakReferencer(TWeakReferencer&& Other)
		: Controller(std::exchange(Other.Controller, nullptr))
	{
	}

	~TWeakReferencer()
	{
		if (Controller)
		{
			Controller->ReleaseWeak();
		}
	}

	TWeakReferencer& operator=(TWeakReferencer Other)
	{
		std::swap(Controller, Other.Controller);
		return *this;
	}

	bool IsAlive() const { return Controller && Controller->GetSharedCount() > 0; }

	/** A shared reference if the object is still alive, otherwise none. */
	TSharedReferencer<Mode> Pin() const
	{
		return TSharedReferencer<Mode>(Controller && Controller->AddSharedIfAlive() ? Controller : nullptr);
	}

private:
	TReferenceController<Mode>* Controller = nullptr;
};

/** What MakeShareable returns: becomes a shared reference or pointer once the target's type is known. */
template <typename ObjectType, typename DeleterType>
struct TRawPtrProxy
{
	ObjectType* Object;
	DeleterType Deleter;
};

/** Whether a pointer to From may be handed out as a pointer to To. */
template <typename From, typename To>
using TEnableIfConvertible = std::enable_if_t<std::is_convertible_v<From*, To*>>;
}
