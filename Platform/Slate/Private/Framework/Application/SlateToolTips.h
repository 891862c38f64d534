#pragma once

#include "Layout/WidgetPath.h"
#include "Widgets/IToolTip.h"

class SWindow;

/** Shows the tool tip of what the mouse rests on, beside the cursor and within the window. */
class FSlateToolTips
{
public:
	/** The mouse is over these widgets now. The deepest one that has a tool tip decides. */
	void OnHover(const FWidgetPath& Path, const FVector2D& CursorPosition, double CurrentTime);

	void Tick(double CurrentTime);

	/** The time at which the tool tip appears; beyond all time when none is due. */
	double GetNextCallTime() const;

	/** Takes the tool tip away until the mouse goes to something else: the user has begun to work. */
	void Dismiss();

	/** Takes the tool tip away; the next move of the mouse may bring it again. */
	void Close();

	TSharedPtr<IToolTip> GetShown() const { return bShown ? Wanted : nullptr; }

private:
	void Show();
	void Hide();

	TSharedPtr<IToolTip> Wanted;
	TWeakPtr<SWindow> Window;
	FVector2D CursorPosition = FVector2D::ZeroVector;
	double ShowTime = 0.0;
	bool bShown = false;
	bool bDismissed = false;
};
