#pragma once

#include "Widgets/SBoxPanel.h"

/** The handles of the tabs of a stack, side by side. Where there is not room for all, the widest give way until they fit. */
class SDockingTabWell final : public SHorizontalBox
{
protected:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
};
