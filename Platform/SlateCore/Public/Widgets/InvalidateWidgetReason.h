#pragma once

#include "CoreTypes.h"

/** What about a widget is no longer true. */
enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	/** Its desired size or the place of its children. */
	Layout = 1 << 0,
	/** Its looks only. */
	Paint = 1 << 1,
	/** Children were added, removed or moved among themselves. */
	ChildOrder = 1 << 3,
	/** It was shown, hidden or collapsed. */
	Visibility = 1 << 5,
};

constexpr EInvalidateWidgetReason operator|(EInvalidateWidgetReason A, EInvalidateWidgetReason B)
{
	return static_cast<EInvalidateWidgetReason>(static_cast<uint8>(A) | static_cast<uint8>(B));
}

constexpr bool EnumHasAnyFlags(EInvalidateWidgetReason Flags, EInvalidateWidgetReason Contains)
{
	return (static_cast<uint8>(Flags) & static_cast<uint8>(Contains)) != 0;
}
