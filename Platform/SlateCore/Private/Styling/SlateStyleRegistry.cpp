#include "Styling/SlateStyleRegistry.h"

#include "Styling/ISlateStyle.h"

TMap<FName, const ISlateStyle*>& FSlateStyleRegistry::GetRegistry()
{
	static TMap<FName, const ISlateStyle*> Registry;
	return Registry;
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	GetRegistry().Add(InSlateStyle.GetStyleSetName(), &InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	GetRegistry().Remove(InSlateStyle.GetStyleSetName());
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	return GetRegistry().FindRef(InSlateStyleName);
}
