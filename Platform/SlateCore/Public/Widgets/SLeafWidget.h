#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** A widget without children. */
class SLATECORE_API SLeafWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override final { return &FNoChildren::NoChildrenInstance; }

protected:
	/** There is nothing to arrange. A leaf whose desired size depends on its width learns that width here. */
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override {}
};
