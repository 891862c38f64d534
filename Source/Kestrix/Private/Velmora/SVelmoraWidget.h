#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class UVelmoraData;

/** A running tool within its tab: the tree of widgets that its description asks for. */
class SVelmoraWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SVelmoraWidget)
		: _DataObj(nullptr)
	{
	}
	SLATE_ARGUMENT(FString, JsonPath)
	SLATE_ARGUMENT(UVelmoraData*, DataObj)
	SLATE_END_ARGS()

	SVelmoraWidget() { SetCanTick(false); }
	void Construct(const FArguments& InArgs);

	/** Absolute path of the tool description, which is also the tool's identity. */
	FString JsonPath;

	/** Set before the tree is made, whose widgets are recorded in it. Kept alive by the module for as long as the editor runs. */
	UVelmoraData* DataObj = nullptr;
};
