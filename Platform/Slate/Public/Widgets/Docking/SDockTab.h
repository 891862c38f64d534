#pragma once

#include "Framework/Docking/TabManager.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

class FTabManager;
class SDockTab;
class SDockingTabStack;
class SWindow;

enum ETabRole
{
	MajorTab,
	PanelTab,
	NomadTab,
	DocumentTab,
};

/** What brought a tab to the front. */
enum class ETabActivationCause : uint8
{
	UserClickedOnTab,
	SetDirectly,
};

/** A tab: the handle in the tab well, and the content that shows while the tab is in front. */
class SLATE_API SDockTab : public SBorder
{
public:
	DECLARE_DELEGATE_OneParam(FOnTabClosedCallback, TSharedRef<SDockTab>);
	DECLARE_DELEGATE_RetVal(bool, FCanCloseTab);

	SLATE_BEGIN_ARGS(SDockTab)
		: _TabRole(ETabRole::PanelTab)
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(ETabRole, TabRole)
	/** Without a label the tab shows the display name of its spawner. */
	SLATE_ATTRIBUTE(FText, Label)
	SLATE_EVENT(FOnTabClosedCallback, OnTabClosed)
	SLATE_EVENT(FCanCloseTab, OnCanCloseTab)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** The content of the tab, not of the handle. */
	virtual void SetContent(const TSharedRef<SWidget>& InContent) override;
	TSharedRef<SWidget> GetContent() { return TabContent; }

	FText GetTabLabel() const;
	void SetLabel(const TAttribute<FText>& InTabLabel);
	void SetTabIcon(const TAttribute<const FSlateBrush*>& InTabIcon);
	ETabRole GetTabRole() const { return TabRole; }

	/** The identifier under which the tab was spawned; unset until its spawner has returned. */
	const FTabId GetLayoutIdentifier() const { return LayoutIdentifier; }

	void SetOnTabClosed(const FOnTabClosedCallback& InHandler) { OnTabClosed = InHandler; }
	void SetCanCloseTab(const FCanCloseTab& InCanCloseTab) { CanCloseTabHandler = InCanCloseTab; }

	/**
	 * Asks whether the tab may close, takes it out of its tab well, and tells the closed handler.
	 *
	 * @return False when the tab must not close.
	 */
	bool RequestCloseTab();

	/** Brings the tab to the front of its well and makes it the active one. */
	void ActivateInParent(ETabActivationCause InActivationCause);
	bool IsForeground() const;
	bool IsActive() const;

	/** Lets the handle light up for a moment. */
	void FlashTab();

	TSharedPtr<SWindow> GetParentWindow() const;

	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual FSlateColor GetForegroundColor() const override;

protected:
	virtual const FSlateBrush* GetBorder() const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

private:
	friend class FTabManager;
	friend class SDockingTabStack;

	void SetLayoutIdentifier(const FTabId& TabId) { LayoutIdentifier = TabId; }
	void SetParentStack(const TSharedPtr<SDockingTabStack>& InStack) { ParentStack = InStack; }

	/** Takes the tab out and tells its handler, without asking. */
	void CloseNow();
	void DropFocusOfContent();
	FReply OnCloseButtonClicked();

	const FDockTabStyle* Style = nullptr;
	TSharedRef<SWidget> TabContent = SNullWidget::NullWidget;
	TSharedPtr<class STextBlock> LabelText;
	TSharedPtr<class SImage> IconImage;
	TWeakPtr<SDockingTabStack> ParentStack;
	FTabId LayoutIdentifier;
	FOnTabClosedCallback OnTabClosed;
	FCanCloseTab CanCloseTabHandler;
	ETabRole TabRole = ETabRole::PanelTab;
	double FlashEndTime = 0.0;
	bool bHasLabel = false;
	bool bFlashing = false;
};
