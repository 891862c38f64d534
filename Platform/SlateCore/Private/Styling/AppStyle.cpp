#include "Styling/AppStyle.h"

#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{
FName GAppStyleName;
}

const ISlateStyle& FAppStyle::Get()
{
	const ISlateStyle* Style = GAppStyleName.IsNone() ? nullptr : FSlateStyleRegistry::FindSlateStyle(GAppStyleName);
	return Style ? *Style : FCoreStyle::Get();
}

const FName FAppStyle::GetAppStyleSetName()
{
	return Get().GetStyleSetName();
}

void FAppStyle::SetAppStyleSetName(const FName& InName)
{
	GAppStyleName = InName;
}
