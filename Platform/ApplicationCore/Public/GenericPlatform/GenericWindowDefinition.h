#pragma once

#include "CoreMinimal.h"

/** What a window is for; decides its frame and its place among other windows. */
enum class EWindowType
{
	/** A window with a title and an entry in the task bar. */
	Normal,
	/** A menu: above its owner, never in the task bar. */
	Menu,
	/** A tool tip: like a menu, but takes no input. */
	ToolTip,
	/** A window that shows something for a moment, without a place in the task bar. */
	Notification,
	/** The picture that follows the mouse while something is dragged. */
	CursorDecorator,
};

enum class EWindowTransparency
{
	None,
	PerWindow,
	PerPixel,
};

enum class EWindowActivationPolicy
{
	/** Never takes the activation when it is shown. */
	Never,
	Always,
	FirstShown,
};

/** Smallest and largest size of a window's client area in pixels; an unset value leaves that side free. */
struct FWindowSizeLimits
{
	FWindowSizeLimits& SetMinWidth(TOptional<float> InValue)
	{
		MinWidth = InValue;
		return *this;
	}
	FWindowSizeLimits& SetMinHeight(TOptional<float> InValue)
	{
		MinHeight = InValue;
		return *this;
	}
	FWindowSizeLimits& SetMaxWidth(TOptional<float> InValue)
	{
		MaxWidth = InValue;
		return *this;
	}
	FWindowSizeLimits& SetMaxHeight(TOptional<float> InValue)
	{
		MaxHeight = InValue;
		return *this;
	}

	const TOptional<float>& GetMinWidth() const { return MinWidth; }
	const TOptional<float>& GetMinHeight() const { return MinHeight; }
	const TOptional<float>& GetMaxWidth() const { return MaxWidth; }
	const TOptional<float>& GetMaxHeight() const { return MaxHeight; }

private:
	TOptional<float> MinWidth;
	TOptional<float> MinHeight;
	TOptional<float> MaxWidth;
	TOptional<float> MaxHeight;
};

/** How a native window is to be made. Positions and sizes are those of the client area, in desktop pixels. */
struct APPLICATIONCORE_API FGenericWindowDefinition
{
	EWindowType Type = EWindowType::Normal;

	float XDesiredPositionOnScreen = 0.0f;
	float YDesiredPositionOnScreen = 0.0f;
	float WidthDesiredOnScreen = 0.0f;
	float HeightDesiredOnScreen = 0.0f;

	EWindowTransparency TransparencySupport = EWindowTransparency::None;

	/** Title bar and frame come from the window manager. */
	bool HasOSWindowBorder = false;
	bool AppearsInTaskbar = true;
	bool IsTopmostWindow = false;
	bool AcceptsInput = true;
	EWindowActivationPolicy ActivationPolicy = EWindowActivationPolicy::Always;
	bool FocusWhenFirstShown = true;

	bool SupportsMinimize = false;
	bool SupportsMaximize = false;
	bool IsModalWindow = false;
	/** False for menus, tool tips and other helpers of a regular window. */
	bool IsRegularWindow = true;
	/** The user can resize the window by its frame. */
	bool HasSizingFrame = false;

	FString Title;
	/** 0 (invisible) to 1. */
	float Opacity = 1.0f;
	FWindowSizeLimits SizeLimits;
};
