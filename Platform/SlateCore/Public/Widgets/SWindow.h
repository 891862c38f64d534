#pragma once

#include "GenericPlatform/GenericApplication.h"
#include "Rendering/SlateDamage.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SOverlay.h"

class SWindow;

DECLARE_DELEGATE_OneParam(FOnWindowClosed, const TSharedRef<SWindow>&);
DECLARE_DELEGATE_OneParam(FRequestDestroyWindowOverride, const TSharedRef<SWindow>&);

/** How a window finds its place. */
enum class EAutoCenter : uint8
{
	None,
	PrimaryWorkArea,
};

/**
 * A window of the desktop: the root of a tree of widgets. Above the content lies a layer for what pops up within the
 * window, such as tool tips.
 */
class SLATECORE_API SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow)
		: _ClientSize(FVector2D::ZeroVector)
		, _ScreenPosition(FVector2D::ZeroVector)
		, _AutoCenter(EAutoCenter::PrimaryWorkArea)
		, _SupportsMaximize(true)
		, _SupportsMinimize(true)
		, _SaneWindowPlacement(true)
	{
	}
	SLATE_ATTRIBUTE(FText, Title)
	/** Slate units. */
	SLATE_ARGUMENT(FVector2D, ClientSize)
	/** Desktop pixels; used when AutoCenter is None. */
	SLATE_ARGUMENT(FVector2D, ScreenPosition)
	SLATE_ARGUMENT(EAutoCenter, AutoCenter)
	/** The user cannot make the window smaller than this, in desktop pixels. */
	SLATE_ARGUMENT(TOptional<float>, MinWidth)
	SLATE_ARGUMENT(TOptional<float>, MinHeight)
	SLATE_ARGUMENT(bool, SupportsMaximize)
	SLATE_ARGUMENT(bool, SupportsMinimize)
	/** Whether a window that is placed by ScreenPosition is moved and shrunk into the work area. */
	SLATE_ARGUMENT(bool, SaneWindowPlacement)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SWindow();
	virtual ~SWindow() override;
	void Construct(const FArguments& InArgs);

	FText GetTitle() const { return Title.Get(); }
	void SetTitle(const FText& InTitle);

	void SetContent(const TSharedRef<SWidget>& InContent);
	TSharedRef<const SWidget> GetContent() const { return ContentSlot->GetWidget(); }

	/** Desktop pixels. */
	FVector2D GetPositionInScreen() const { return ScreenPosition; }
	FVector2D GetSizeInScreen() const { return Size; }
	FVector2D GetClientSizeInScreen() const { return Size; }
	FSlateRect GetRectInScreen() const { return FSlateRect::FromPointAndExtent(ScreenPosition, Size); }
	void MoveWindowTo(FVector2D NewPosition);
	void Resize(FVector2D NewClientSize);

	/** Pixels per slate unit. */
	float GetDPIScaleFactor() const;

	void ShowWindow();
	void HideWindow();
	void BringToFront(bool bForce = false);
	bool IsShown() const { return bShown; }

	/** Asks the owner whether the window may close (the override), or destroys it. */
	void RequestDestroyWindow();
	void SetRequestDestroyWindowOverride(const FRequestDestroyWindowOverride& InOverride) { RequestDestroyOverride = InOverride; }

	/** Told right before the window goes. */
	void SetOnWindowClosed(const FOnWindowClosed& InDelegate) { OnWindowClosed = InDelegate; }

	/** Shows a widget above the content at a place in slate units, until RemovePopup. */
	void AddPopup(const TSharedRef<SWidget>& Popup, const FVector2D& LocalPosition);
	void RemovePopup(const TSharedRef<SWidget>& Popup);

	//
	// Used by the application
	//

	const TSharedPtr<FGenericWindow>& GetNativeWindow() const { return NativeWindow; }
	/** @param WorkArea Where a window that is to be centred goes, and where a placed one stays unless told otherwise. */
	FGenericWindowDefinition MakeDefinition(const FPlatformRect& WorkArea) const;
	void SetNativeWindow(const TSharedRef<FGenericWindow>& InNativeWindow) { NativeWindow = InNativeWindow; }
	void SetCachedScreenPosition(FVector2D InPosition) { ScreenPosition = InPosition; }
	void SetCachedSize(FVector2D InSize);
	void NotifyWindowBeingDestroyed();

	/** Measures and arranges what is invalid. */
	void UpdateLayout();
	bool NeedsLayout() const { return bSizeChanged || IsLayoutInvalid(); }

	const FSlateDamage& GetDamage() const { return Damage; }
	void AddDamage(const FSlateRect& Rect) { Damage.Add(Rect); }
	void DamageAll();

	/** Paints the damage into a list. What is damaged meanwhile is left for the next frame. */
	void PaintWindow(double CurrentTime, float DeltaTime, FSlateWindowElementList& OutDrawElements);

	virtual SWindow* AsWindow() override { return this; }

private:
	TSlateAttribute<FText, EInvalidateWidgetReason::None> Title{*this};
	TSharedPtr<SOverlay> Layers;
	SOverlay::FOverlaySlot* ContentSlot = nullptr;
	TSharedPtr<FGenericWindow> NativeWindow;
	FVector2D ScreenPosition = FVector2D::ZeroVector;
	FVector2D Size = FVector2D::ZeroVector;
	FSlateDamage Damage;
	FOnWindowClosed OnWindowClosed;
	FRequestDestroyWindowOverride RequestDestroyOverride;
	EAutoCenter AutoCenter = EAutoCenter::PrimaryWorkArea;
	TOptional<float> MinWidth;
	TOptional<float> MinHeight;
	bool bSupportsMaximize = true;
	bool bSupportsMinimize = true;
	bool bSaneWindowPlacement = true;
	bool bShown = false;
	bool bSizeChanged = true;
};
