#pragma once

#include "CoreMinimal.h"
#include "SlotBase.h"

/** The children of a widget, in the order in which they are painted unless the widget says otherwise. */
class SLATECORE_API FChildren
{
public:
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const = 0;

	/** As GetChildAt, without taking a reference. */
	virtual SWidget& GetChildRefAt(int32 Index) const = 0;
};

/** The children of a widget that can have none. */
class SLATECORE_API FNoChildren final : public FChildren
{
public:
	static FNoChildren NoChildrenInstance;

	virtual int32 Num() const override { return 0; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override;
	virtual SWidget& GetChildRefAt(int32 Index) const override;
};

/** The children of a widget that has exactly one slot: the slot itself. */
class SLATECORE_API FSingleWidgetChildren : public FChildren, public FSlotBase
{
public:
	explicit FSingleWidgetChildren(SWidget& InOwner) { SetOwner(InOwner); }

	virtual int32 Num() const override;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override;
	virtual SWidget& GetChildRefAt(int32 Index) const override;

	FSingleWidgetChildren& operator[](const TSharedRef<SWidget>& InWidget)
	{
		AttachWidget(InWidget);
		return *this;
	}
};

/** What a slot is made from, before it joins a panel: the slot, still without an owner. */
template <typename SlotType>
class TSlotArguments
{
public:
	TSlotArguments()
		: Slot(MakeUnique<SlotType>())
	{
	}
	TSlotArguments(TSlotArguments&&) = default;
	TSlotArguments& operator=(TSlotArguments&&) = default;

	/** Moves the slot out; the arguments are empty then. */
	TUniquePtr<SlotType> StealSlot() { return MoveTemp(Slot); }

protected:
	SlotType& GetSlot() { return *Slot; }

	TUniquePtr<SlotType> Slot;
};

/** Children of a panel with slots of one type. */
template <typename SlotType>
class TPanelChildren final : public FChildren
{
public:
	explicit TPanelChildren(SWidget* InOwner)
		: Owner(*InOwner)
	{
	}

	virtual int32 Num() const override { return Slots.Num(); }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) const override { return Slots[Index]->GetWidget(); }
	virtual SWidget& GetChildRefAt(int32 Index) const override { return Slots[Index]->GetWidget().Get(); }

	SlotType& operator[](int32 Index) { return *Slots[Index]; }
	const SlotType& operator[](int32 Index) const { return *Slots[Index]; }

	SlotType& InsertSlot(TUniquePtr<SlotType> Slot, int32 Index)
	{
		SlotType& Added = *Slot;
		Slots.Insert(MoveTemp(Slot), Index);
		Added.SetOwner(Owner);
		return Added;
	}

	SlotType& AddSlot(TUniquePtr<SlotType> Slot) { return InsertSlot(MoveTemp(Slot), Slots.Num()); }

	/** @return The index at which the widget stood, or INDEX_NONE when it is no child. */
	int32 Remove(const TSharedRef<SWidget>& Widget);

	void RemoveAt(int32 Index);
	void Empty();

private:
	SWidget& Owner;
	TArray<TUniquePtr<SlotType>> Slots;
};

/** SWidget::Invalidate with the reason ChildOrder, for the templates of this file. */
SLATECORE_API void InvalidateChildOrder(SWidget& Widget);

template <typename SlotType>
int32 TPanelChildren<SlotType>::Remove(const TSharedRef<SWidget>& Widget)
{
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		if (Slots[Index]->GetWidget() == Widget)
		{
			RemoveAt(Index);
			return Index;
		}
	}
	return INDEX_NONE;
}

template <typename SlotType>
void TPanelChildren<SlotType>::RemoveAt(int32 Index)
{
	// The slot dies after it left the array: whatever its child's end sets off sees a consistent panel.
	const TUniquePtr<SlotType> Removed = MoveTemp(Slots[Index]);
	Slots.RemoveAt(Index);
	InvalidateChildOrder(Owner);
}

template <typename SlotType>
void TPanelChildren<SlotType>::Empty()
{
	const TArray<TUniquePtr<SlotType>> Removed = MoveTemp(Slots);
	Slots.Reset();
	InvalidateChildOrder(Owner);
}

/**
 * The slot that an AddSlot call returns: it joins its panel when the returned object dies, at the end of the full
 * expression or of the variable's scope, after all that was said about it.
 */
template <typename SlotType, typename SlotArgumentsType>
class TScopedSlotArguments : public SlotArgumentsType
{
public:
	TScopedSlotArguments(TPanelChildren<SlotType>& InChildren, int32 InIndex)
		: Children(&InChildren)
		, Index(InIndex)
	{
	}

	TScopedSlotArguments(TScopedSlotArguments&& Other)
		: SlotArgumentsType(MoveTemp(Other))
		, Children(Other.Children)
		, Index(Other.Index)
	{
		Other.Children = nullptr;
	}

	~TScopedSlotArguments()
	{
		if (Children)
		{
			Children->InsertSlot(this->StealSlot(), Index == INDEX_NONE ? Children->Num() : Index);
		}
	}

private:
	TPanelChildren<SlotType>* Children;
	int32 Index;
};
