#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** The content of the tab "Python Tools". */
class SToolsCompoundWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SToolsCompoundWidget) {}
	SLATE_END_ARGS()

	SToolsCompoundWidget() { SetCanTick(false); }
	void Construct(const FArguments& InArgs);
};
