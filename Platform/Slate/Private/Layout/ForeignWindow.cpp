#include "Layout/ForeignWindow.h"

#include "Widgets/SWindow.h"

bool IsWithinForeignWindow(const SWidget& Widget)
{
	int32 NumWindows = 0;
	for (SWidget* Step = Widget.GetParentPointer(); Step && NumWindows < 2; Step = Step->GetParentPointer())
	{
		NumWindows += Step->AsWindow() != nullptr;
	}
	return NumWindows > 1;
}
