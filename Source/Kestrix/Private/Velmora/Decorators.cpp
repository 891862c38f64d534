#include "Velmora/Decorators.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Velmora/DecorationTable.h"
#include "Velmora/KeyTables.h"
#include "Velmora/VelmoraGenerator.h"
#include "Widgets/SWidget.h"

namespace
{
bool ApplyDecoration(const FDecorationSite& Site, const TSharedPtr<FJsonValue>& Value)
{
	const FDecoration* Decoration =
		GetDecorations().FindByPredicate([&Site](const FDecoration& Entry) { return IsSameKey(Site.Key, *Entry.Columns.Key); });
	return Decoration != nullptr && Decoration->Apply(Decoration->Columns, Site, Value);
}

void CheckUnhandledKey(const FDecorationSite& Site, const FString& Path)
{
	if (InbornDecorate(Site.WidgetType, Site.Key))
	{
		UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("InbornDecorate: %s @ %s regard as handled.."), *Site.Key, *Site.WidgetType);
		return;
	}
	UE_LOG(Velmora, Warning, TEXT("Decorate: %s @ %s not handled, @ %s"), *Site.Key, *Site.WidgetType, *Path);
	if (IsSameKey(Site.Key, TEXT("AutoHeight")) && IsSameKey(Site.WidgetType, TEXT("SGridPanel")))
	{
		UE_LOG(
			Velmora, Warning, TEXT("\t\"%s\" can be used in SVerticalBox or it's children, not %s"), *Site.Key, *Site.WidgetType);
	}
}
}

void Decorate(const TSharedRef<SWidget>& Widget, const FString& Key, const TSharedPtr<FJsonValue>& Value, const FString& Path)
{
	UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("Decorate: %s"), *Key);
	const FString WidgetType = Widget->GetType().ToString();
	const FDecorationSite Site = {*Widget, Key, WidgetType};
	if (!ApplyDecoration(Site, Value))
	{
		CheckUnhandledKey(Site, Path);
	}
}
