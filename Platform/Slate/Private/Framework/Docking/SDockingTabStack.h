#pragma once

#include "Widgets/SCompoundWidget.h"

class SBorder;
class SDockTab;
class SDockingTabWell;
class SWindow;

/** A well of tabs and, below it, the content of the one in front. */
class SDockingTabStack final : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDockingTabStack) {}
	SLATE_END_ARGS()

	SDockingTabStack() { SetCanTick(false); }
	void Construct(const FArguments& InArgs);

	void AddTab(const TSharedRef<SDockTab>& Tab);
	void RemoveTab(const TSharedRef<SDockTab>& Tab);
	void BringToFront(const TSharedRef<SDockTab>& Tab);

	/** The tab has a new content. */
	void ShowContentOf(const TSharedRef<SDockTab>& Tab);

	const TArray<TSharedRef<SDockTab>>& GetTabs() const { return Tabs; }
	TSharedPtr<SDockTab> GetForegroundTab() const { return Foreground; }

	/** The stack is all there is in a window: the window is called as the tab in front, closes its tabs, and ends with the last. */
	void SetOwnWindow(const TSharedRef<SWindow>& InWindow);
	void UpdateWindowTitle();

	/** A press anywhere in the content makes its tab the active one. */
	virtual FReply OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

private:
	void OnWindowWantsToClose(const TSharedRef<SWindow>& Window);

	TArray<TSharedRef<SDockTab>> Tabs;
	TSharedPtr<SDockTab> Foreground;
	TSharedPtr<SDockingTabWell> Well;
	TSharedPtr<SBorder> ContentArea;
	TWeakPtr<SWindow> OwnWindow;
};
