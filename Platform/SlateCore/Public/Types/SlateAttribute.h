#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Widgets/InvalidateWidgetReason.h"

class SWidget;

/** SWidget::Invalidate for templates that only know the widget by name. */
SLATECORE_API void InvalidateSlateWidget(SWidget& Widget, EInvalidateWidgetReason Reason);

/** What the widget's class says that a change of the attribute at this address invalidates. */
SLATECORE_API EInvalidateWidgetReason FindInvalidationReason(const SWidget& Widget, const void* Attribute);

/** A bound attribute of a widget, which the application evaluates once a frame while the widget is visible. */
class SLATECORE_API FSlateAttributeBinding
{
public:
	FSlateAttributeBinding(SWidget& InWidget, EInvalidateWidgetReason InReason);
	virtual ~FSlateAttributeBinding();

	FSlateAttributeBinding(const FSlateAttributeBinding&) = delete;
	FSlateAttributeBinding& operator=(const FSlateAttributeBinding&) = delete;

	/** Evaluates the binding. A value that differs from the last one invalidates the widget. */
	void Update();

	/** Updates the bindings of all widgets that are shown, or whose parent is: a hidden widget may have become visible. */
	static void UpdateAllDue();

protected:
	/** Fetches the present value and says whether it differs. */
	virtual bool Fetch() = 0;

private:
	bool IsDue() const;

	FSlateAttributeBinding* Next;
	FSlateAttributeBinding* Previous = nullptr;
	SWidget& Widget;
	EInvalidateWidgetReason Reason;
};

namespace SlateAttributePrivate
{
/** An attribute wherever it is kept; see TSlateAttribute. */
template <typename ObjectType, EInvalidateWidgetReason InvalidationReason>
class TSlateAttributeBase
{
public:
	static constexpr bool HasDefinedInvalidationReason = InvalidationReason != EInvalidateWidgetReason::None;

	TSlateAttributeBase() = default;
	explicit TSlateAttributeBase(const ObjectType& InValue)
		: Value(InValue)
	{
	}
	explicit TSlateAttributeBase(ObjectType&& InValue)
		: Value(MoveTemp(InValue))
	{
	}

	const ObjectType& Get() const { return Value; }
	bool IsBound() const { return Binding.IsValid(); }

	/** Asks the getter again, outside the frame's own evaluation, and returns the present value. */
	const ObjectType& GetUpdated() const
	{
		if (Binding.IsValid())
		{
			Binding->Update();
		}
		return Value;
	}

	/** Takes a value or a binding. An attribute that is not set is left alone. */
	void Assign(SWidget& Widget, const TAttribute<ObjectType>& Attribute)
	{
		if (Attribute.IsBound())
		{
			Binding = MakeUnique<FBinding>(Widget, GetReason(Widget), Value, Attribute);
			Binding->Update();
		}
		else if (Attribute.IsSet())
		{
			Set(Widget, Attribute.Get());
		}
	}

	/** As above; an attribute that is not set gives the default value. */
	void Assign(SWidget& Widget, const TAttribute<ObjectType>& Attribute, const ObjectType& DefaultValue)
	{
		if (Attribute.IsSet())
		{
			Assign(Widget, Attribute);
		}
		else
		{
			Set(Widget, DefaultValue);
		}
	}

	void Set(SWidget& Widget, const ObjectType& NewValue)
	{
		Binding.Reset();
		if (!IsIdentical(Value, NewValue))
		{
			Value = NewValue;
			InvalidateSlateWidget(Widget, GetReason(Widget));
		}
	}

private:
	EInvalidateWidgetReason GetReason(const SWidget& Widget) const
	{
		return HasDefinedInvalidationReason ? InvalidationReason : FindInvalidationReason(Widget, this);
	}

	/** Texts are compared by what they show, everything else by its own equality. */
	static bool IsIdentical(const FText& A, const FText& B) { return A.IdenticalTo(B) || A.EqualTo(B); }

	template <typename T>
	static bool IsIdentical(const T& A, const T& B)
	{
		return A == B;
	}

	class FBinding final : public FSlateAttributeBinding
	{
	public:
		FBinding(SWidget& InWidget, EInvalidateWidgetReason Reason, ObjectType& InTarget, const TAttribute<ObjectType>& InSource)
			: FSlateAttributeBinding(InWidget, Reason)
			, Target(InTarget)
			, Source(InSource)
		{
		}

	private:
		virtual bool Fetch() override
		{
			ObjectType NewValue = Source.Get();
			if (IsIdentical(Target, NewValue))
			{
				return false;
			}
			Target = MoveTemp(NewValue);
			return true;
		}

		ObjectType& Target;
		TAttribute<ObjectType> Source;
	};

	ObjectType Value{};
	TUniquePtr<FBinding> Binding;
};
}

/**
 * A member of a widget that holds a value and may be bound to a getter. Unbound it costs its value and one pointer. Storing an
 * equal value invalidates nothing; setting a value replaces a binding.
 *
 *	TSlateAttribute<FText> Text(*this, FText::GetEmpty());
 *
 * @tparam InvalidationReason What a change of the value invalidates. None leaves it to the widget's class, which says so in
 *         SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION.
 */
template <typename ObjectType, EInvalidateWidgetReason InvalidationReason = EInvalidateWidgetReason::None>
class TSlateAttribute : public SlateAttributePrivate::TSlateAttributeBase<ObjectType, InvalidationReason>
{
	using FBase = SlateAttributePrivate::TSlateAttributeBase<ObjectType, InvalidationReason>;

public:
	/** @param Widget  The widget whose member this is. */
	explicit TSlateAttribute(SWidget& Widget) {}
	TSlateAttribute(SWidget& Widget, const ObjectType& InValue)
		: FBase(InValue)
	{
	}
	TSlateAttribute(SWidget& Widget, ObjectType&& InValue)
		: FBase(MoveTemp(InValue))
	{
	}
};
