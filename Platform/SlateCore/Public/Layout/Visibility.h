#pragma once

#include "CoreTypes.h"

/** Whether a widget shows, takes room, and can be hit by the mouse: itself, its children, or neither. */
struct EVisibility
{
	/** Shown and hit. */
	static const EVisibility Visible;
	/** Not shown, takes no room. */
	static const EVisibility Collapsed;
	/** Not shown, takes its room. */
	static const EVisibility Hidden;
	/** Shown; neither it nor its children can be hit. */
	static const EVisibility HitTestInvisible;
	/** Shown; its children can be hit, it cannot. */
	static const EVisibility SelfHitTestInvisible;
	/** A filter for arranging: every widget. */
	static const EVisibility All;

	constexpr EVisibility()
		: Value(VIS_Visible)
	{
	}

	constexpr bool operator==(const EVisibility& Other) const { return Value == Other.Value; }
	constexpr bool operator!=(const EVisibility& Other) const { return Value != Other.Value; }

	constexpr bool AreChildrenHitTestVisible() const { return (Value & VISPRIVATE_ChildrenHitTestVisible) != 0; }
	constexpr bool IsHitTestVisible() const { return (Value & VISPRIVATE_SelfHitTestVisible) != 0; }
	constexpr bool IsVisible() const { return (Value & VISPRIVATE_Visible) != 0; }

	static constexpr bool DoesVisibilityPassFilter(EVisibility InVisibility, EVisibility InFilter)
	{
		return (InVisibility.Value & InFilter.Value) != 0;
	}

	/** The name of the constant, e.g. "Collapsed". */
	const TCHAR* ToString() const
	{
		switch (Value)
		{
			case VIS_Collapsed:
				return TEXT("Collapsed");
			case VIS_Hidden:
				return TEXT("Hidden");
			case VIS_HitTestInvisible:
				return TEXT("HitTestInvisible");
			case VIS_SelfHitTestInvisible:
				return TEXT("SelfHitTestInvisible");
			default:
				return TEXT("Visible");
		}
	}

private:
	enum Private : uint8
	{
		VISPRIVATE_Visible = 0x1 << 0,
		VISPRIVATE_Collapsed = 0x1 << 1,
		VISPRIVATE_Hidden = 0x1 << 2,
		VISPRIVATE_SelfHitTestVisible = 0x1 << 3,
		VISPRIVATE_ChildrenHitTestVisible = 0x1 << 4,

		VIS_Visible = VISPRIVATE_Visible | VISPRIVATE_SelfHitTestVisible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_Collapsed = VISPRIVATE_Collapsed,
		VIS_Hidden = VISPRIVATE_Hidden,
		VIS_HitTestInvisible = VISPRIVATE_Visible,
		VIS_SelfHitTestInvisible = VISPRIVATE_Visible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_All = VISPRIVATE_Visible | VISPRIVATE_Hidden | VISPRIVATE_Collapsed | VISPRIVATE_SelfHitTestVisible |
			VISPRIVATE_ChildrenHitTestVisible,
	};

	constexpr EVisibility(Private InValue)
		: Value(InValue)
	{
	}

	Private Value;
};

inline constexpr EVisibility EVisibility::Visible(EVisibility::VIS_Visible);
inline constexpr EVisibility EVisibility::Collapsed(EVisibility::VIS_Collapsed);
inline constexpr EVisibility EVisibility::Hidden(EVisibility::VIS_Hidden);
inline constexpr EVisibility EVisibility::HitTestInvisible(EVisibility::VIS_HitTestInvisible);
inline constexpr EVisibility EVisibility::SelfHitTestInvisible(EVisibility::VIS_SelfHitTestInvisible);
inline constexpr EVisibility EVisibility::All(EVisibility::VIS_All);
