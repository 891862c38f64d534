#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

class FSlateRenderer;
class IToolTip;
class SWidget;
class SWindow;

/** What widgets need of the application, so that they need not know the whole of it. */
class SLATECORE_API FSlateApplicationBase
{
public:
	virtual ~FSlateApplicationBase();

	static FSlateApplicationBase& Get()
	{
		checkf(CurrentBaseApplication, TEXT("There is no Slate application"));
		return *CurrentBaseApplication;
	}

	static bool IsInitialized() { return CurrentBaseApplication != nullptr; }

	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

	/** The time of the present frame in seconds. */
	double GetCurrentTime() const { return CurrentTime; }

	virtual TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& ToolTipText) = 0;
	virtual void RequestDestroyWindow(const TSharedRef<SWindow>& WindowToDestroy) = 0;
	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const = 0;
	virtual bool DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget>& Widget) const = 0;
	virtual bool HasFocusedDescendants(const TSharedRef<const SWidget>& Widget) const = 0;

	/** Whether the widget has the focus by the keyboard, so that the focus is to be seen. */
	bool ShowsFocusOn(const SWidget& Widget) const { return VisiblyFocused == &Widget; }

	/** Asks for a frame although nothing else happened. */
	void RequestFrame() { bFrameRequested = true; }

protected:
	FSlateApplicationBase();

	TSharedPtr<FSlateRenderer> Renderer;
	double CurrentTime = 0.0;
	const SWidget* VisiblyFocused = nullptr;
	bool bFrameRequested = true;

private:
	static FSlateApplicationBase* CurrentBaseApplication;
};
