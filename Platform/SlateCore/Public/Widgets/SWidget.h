#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Input/CursorReply.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "Layout/Clipping.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Types/ISlateMetaData.h"
#include "Types/SlateAttribute.h"
#include "Types/SlateAttributeDescriptor.h"
#include "Types/WidgetActiveTimerDelegate.h"
#include "Widgets/InvalidateWidgetReason.h"
#include "Widgets/SlateControlledConstruction.h"

class FActiveTimerHandle;
class FPaintArgs;
class FSlateDamage;
class FSlateWindowElementList;
class FWidgetStyle;
class IToolTip;
struct FSlateBaseNamedArgs;
struct FSlateBrush;
struct FSlateWidgetExtras;

/**
 * The base of everything on screen. A widget knows its desired size, arranges its children within the room it is given,
 * paints itself, and answers events.
 *
 * What changed is told by Invalidate; the next frame measures, arranges and paints just that. The place that the last
 * frame gave to a widget stays in it (GetPaintSpaceGeometry, GetTickSpaceGeometry), and so does the list of the children
 * that were within sight, which painting and hit testing walk.
 */
class SLATECORE_API SWidget : public FSlateControlledConstruction, public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget() override;

	/** The class as far as SLATE_DECLARE_WIDGET told of it; without that, the nearest parent's. */
	static const FSlateWidgetClassData& StaticWidgetClass();
	virtual const FSlateWidgetClassData& GetWidgetClass() const { return StaticWidgetClass(); }

	/** The arguments that every widget takes. Called by the declarative syntax before Construct. */
	void SWidgetConstruct(const FSlateBaseNamedArgs& Args);

	//
	// Measuring, arranging, painting
	//

	/** Measures what is invalid in this subtree. @param LayoutScaleMultiplier Pixels per slate unit. */
	void SlatePrepass(float LayoutScaleMultiplier = 1.0f);

	const FVector2D& GetDesiredSize() const { return DesiredSize; }

	/**
	 * Gives the widget its place, in window space, and arranges what is invalid below it.
	 *
	 * @param Clip Nothing of the widget shows outside this rectangle.
	 * @param Damage Takes the rectangles in which the window no longer looks right.
	 */
	void UpdateArrangement(const FGeometry& Geometry, const FSlateRect& Clip, FSlateDamage& Damage);

	/**
	 * Paints the widget and those below it, as far as they meet the damage of Args.
	 *
	 * @param AllottedGeometry Where, in window space: what the parent's OnArrangeChildren gave the widget. A widget that is painted
	 *        elsewhere moves there.
	 * @return The highest layer used.
	 */
	int32 Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
	{
		OnArrangeChildren(AllottedGeometry, ArrangedChildren);
	}

	virtual FChildren* GetChildren() = 0;

	/** The children that the last arrangement showed, in paint order. */
	const TArray<SWidget*>& GetVisibleChildren() const { return VisibleChildren; }

	/** Where the last frame put the widget, in its window's space and on the desktop. */
	const FGeometry& GetPaintSpaceGeometry() const { return PaintSpaceGeometry; }
	FGeometry GetTickSpaceGeometry() const;
	const FGeometry& GetCachedGeometry() const { return PaintSpaceGeometry; }

	/** All that the widget and those below it paint lies in this rectangle of the window. */
	const FSlateRect& GetPaintBounds() const { return PaintBounds; }

	/** Whether the last frame showed the widget: in a window, not collapsed, not scrolled away, no hidden tab around it. */
	bool IsShownInFrame() const;

	void Invalidate(EInvalidateWidgetReason Reason);

	/** Whether something in this subtree waits to be measured or arranged. */
	bool IsLayoutInvalid() const { return bNeedsPrepass || bNeedsArrange || bDescendantNeedsArrange; }

	//
	// State
	//

	/** The text of the SNew argument that made the widget, e.g. "SButton" or "SComboBox<TSharedPtr<FString>>". */
	FName GetType() const { return TypeOfWidget; }
	FString GetTypeAsString() const { return TypeOfWidget.ToString(); }
	void SetTypeOfWidget(FName InType) { TypeOfWidget = InType; }

	EVisibility GetVisibility() const { return VisibilityAttribute.Get(); }
	void SetVisibility(const TAttribute<EVisibility>& InVisibility);

	/** Whether this widget alone is enabled; a disabled parent disables it all the same. */
	bool IsEnabled() const { return EnabledAttribute.Get(); }
	void SetEnabled(const TAttribute<bool>& InEnabled);
	bool IsEnabledInTree() const;

	void SetClipping(EWidgetClipping InClipping);
	EWidgetClipping GetClipping() const { return Clipping; }

	void SetToolTipText(const TAttribute<FText>& ToolTipText);
	void SetToolTip(const TSharedPtr<IToolTip>& InToolTip);
	TSharedPtr<IToolTip> GetToolTip() const;

	void SetCursor(const TAttribute<TOptional<EMouseCursor::Type>>& InCursor);
	TOptional<EMouseCursor::Type> GetCursor() const;

	void SetTag(FName InTag);
	FName GetTag() const;

	void AddMetadata(const TSharedRef<ISlateMetaData>& AddMe);

	template <typename MetaDataType>
	TSharedPtr<MetaDataType> GetMetaData() const
	{
		return StaticCastSharedPtr<MetaDataType>(FindMetaData(MetaDataType::GetTypeId()));
	}

	bool IsHovered() const { return bIsHovered; }

	TSharedPtr<SWidget> GetParentWidget() const;
	bool IsParentValid() const { return ParentWidget != nullptr; }
	SWidget* GetParentPointer() const { return ParentWidget; }
	void AssignParentWidget(SWidget& InParent);
	void ConditionallyDetachParentWidget(const SWidget* InExpectedParent);

	/** The topmost widget above this one: its window, if it is in one. */
	SWidget& GetRootWidget();

	//
	// Time
	//

	/**
	 * Calls a function of the widget from its frames, as long as the widget is shown.
	 *
	 * @param TickPeriod Seconds between calls; 0 calls once a frame and keeps frames coming.
	 */
	TSharedRef<FActiveTimerHandle> RegisterActiveTimer(float TickPeriod, FWidgetActiveTimerDelegate TickFunction);
	void UnRegisterActiveTimer(const TSharedRef<FActiveTimerHandle>& ActiveTimerHandle);

	/** Calls the timers that are due. @return The time of the next call, or a value beyond all time when none is left. */
	double ExecuteActiveTimers(double CurrentTime, float DeltaTime);

	/** The time at which the widget wants to be called next; beyond all time when it does not. */
	double GetNextCallTime() const;

	/**
	 * Called once a frame while the widget is shown, unless SetCanTick(false) was said. A widget that ticks keeps frames coming, so
	 * one that needs no ticks says so in its constructor.
	 */
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) {}
	void SetCanTick(bool bInCanTick);
	bool GetCanTick() const { return bCanTick; }

	//
	// Events
	//

	virtual void OnFocusChanging(
		const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent)
	{
	}
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) { return FReply::Unhandled(); }
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) {}
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) { return FReply::Unhandled(); }
	virtual FReply OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) { return FReply::Unhandled(); }
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) { return FReply::Unhandled(); }
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) { return FReply::Unhandled(); }
	virtual FReply OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		return FReply::Unhandled();
	}
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) { return FReply::Unhandled(); }
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) { return FReply::Unhandled(); }
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		return FReply::Unhandled();
	}
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) { return FReply::Unhandled(); }
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) { return FReply::Unhandled(); }

	/** An override calls the base, which keeps IsHovered. */
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) { bIsHovered = true; }
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) { bIsHovered = false; }
	virtual void OnMouseCaptureLost() {}
	/** Drawn around the widget while it has the focus by the keyboard; null for a widget that shows its focus itself. */
	virtual const FSlateBrush* GetFocusBrush() const;

	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const;

	virtual bool SupportsKeyboardFocus() const { return false; }
	bool HasKeyboardFocus() const;
	bool HasFocusedDescendants() const;
	bool HasMouseCapture() const;

	//
	// Roots
	//

	/** The window that shows a tree whose root is this widget; null for every other widget. */
	virtual class SWindow* AsWindow() { return nullptr; }

protected:
	SWidget();

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const = 0;

	int32 PaintVisibleChildren(const FPaintArgs& Args, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	bool ShouldBeEnabled(bool bParentEnabled) const { return bParentEnabled && IsEnabled(); }

	/** Sets an attribute of the widget, or binds it; see TSlateAttribute. */
	template <typename ObjectType, EInvalidateWidgetReason Reason>
	void SetAttribute(SlateAttributePrivate::TSlateAttributeBase<ObjectType, Reason>& Member, const TAttribute<ObjectType>& Value)
	{
		Member.Assign(*this, Value);
	}

private:
	void UpdateFrameCalls();
	void MoveToPaintedPlace(const FGeometry& AllottedGeometry);
	void MarkPrepassUpwards();
	void AddDamage(const FSlateRect& Rect);
	FSlateRect RoomOf(const FGeometry& Geometry) const;
	FSlateRect ComputeOwnPaintBounds() const;
	void ArrangeAnew(const FSlateRect& ChildClip, FSlateDamage& Damage);
	void ArrangeInvalidDescendants(const FSlateRect& ChildClip, FSlateDamage& Damage);
	void UpdatePaintBounds(const FSlateRect& ChildClip);
	void LeaveArrangement(FSlateDamage& Damage);
	FSlateRect GetClipOfChildren() const;
	TSharedPtr<ISlateMetaData> FindMetaData(FName TypeId) const;
	FSlateWidgetExtras& GetOrMakeExtras();

	FName TypeOfWidget;
	uint32 ArrangeStamp = 0;
	SWidget* ParentWidget = nullptr;
	TUniquePtr<FSlateWidgetExtras> Extras;
	TArray<SWidget*> VisibleChildren;
	FGeometry PaintSpaceGeometry;
	FSlateRect ClipRect;
	FSlateRect PaintBounds;
	FVector2D DesiredSize = FVector2D::ZeroVector;
	TSlateAttribute<EVisibility, EInvalidateWidgetReason::Visibility> VisibilityAttribute{*this};
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> EnabledAttribute{*this, true};
	float PrepassScale = 0.0f;
	EWidgetClipping Clipping = EWidgetClipping::Inherit;

	uint8 bNeedsPrepass : 1;
	uint8 bNeedsArrange : 1;
	uint8 bDescendantNeedsArrange : 1;
	uint8 bArranged : 1;
	uint8 bCanTick : 1;
	uint8 bCalledInFrames : 1;

protected:
	uint8 bIsHovered : 1;
};
