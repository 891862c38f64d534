#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWindow.h"

/** The modifier keys that are held down. */
struct FHeldModifiers
{
	bool bShift = false;
	bool bControl = false;
	bool bAlt = false;
};

/**
 * A window of an off-screen Slate application with some content, and a user in front of it: every function sends the reports
 * that a platform would send, and then lets a frame pass. Places are pixels of the window. Time passes in steps of a sixtieth
 * of a second, and only when a frame passes.
 */
class FSlateTestWindow
{
public:
	explicit FSlateTestWindow(const TSharedRef<SWidget>& Content, const FVector2D& Size = FVector2D(640.0, 480.0));
	~FSlateTestWindow();

	FSlateTestWindow(const FSlateTestWindow&) = delete;
	FSlateTestWindow& operator=(const FSlateTestWindow&) = delete;

	SWindow& GetWindow() { return *Window; }

	/** One frame, with everything that is due in it. */
	void Frame();

	/** As many frames as fit into the time. */
	void Wait(double Seconds);

	void MoveMouse(const FVector2D& Place);
	void Press(EMouseButtons::Type Button = EMouseButtons::Left);
	void Release(EMouseButtons::Type Button = EMouseButtons::Left);

	/** A move to the middle of the widget, a press and a release. */
	void Click(const TSharedRef<SWidget>& Widget, EMouseButtons::Type Button = EMouseButtons::Left);
	void ClickAt(const FVector2D& Place, EMouseButtons::Type Button = EMouseButtons::Left);
	void DoubleClickAt(const FVector2D& Place);

	/** @param Delta Notches; positive away from the user. */
	void Wheel(float Delta);

	/** The key goes down and up; a key that types a character does not type it here. */
	void PressKey(const FKey& Key, FHeldModifiers Modifiers = {});
	void KeyDown(const FKey& Key, FHeldModifiers Modifiers = {}, bool bRepeat = false);
	void KeyUp(const FKey& Key, FHeldModifiers Modifiers = {});
	void TypeText(const FString& Text);

	/** The middle of a widget as the last frame placed it. */
	FVector2D MiddleOf(const SWidget& Widget) const;

	FColor GetPixel(int32 X, int32 Y);

	/** How many elements the last frame painted; 0 when it painted nothing. */
	int32 CountPaintedElements();

private:
	void SetModifiers(const FHeldModifiers& Modifiers);

	TSharedPtr<SWindow> Window;
};
