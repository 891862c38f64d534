#include "Velmora/WidgetContent.h"

#include "KestrixLog.h"
#include "Velmora/KeyTables.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"

namespace
{
/** A widget that holds one child. */
struct FContentWidget
{
	const TCHAR* Type;
	void (*SetContent)(SWidget& Parent, const TSharedRef<SWidget>& Child);
};

template <typename T>
void SetContentOf(SWidget& Parent, const TSharedRef<SWidget>& Child)
{
	static_cast<T&>(Parent).SetContent(Child);
}

const FContentWidget ContentWidgets[] = {
	{TEXT("SBorder"), &SetContentOf<SBorder>},
	{TEXT("SCheckBox"), &SetContentOf<SCheckBox>},
	{TEXT("SBox"), &SetContentOf<SBox>},
	{TEXT("SButton"), &SetContentOf<SBorder>},
};

const FContentWidget* FindContentWidget(const FString& Type)
{
	for (const FContentWidget& Widget : ContentWidgets)
	{
		if (IsSameKey(Type, Widget.Type))
		{
			return &Widget;
		}
	}
	return nullptr;
}
}

bool IsContentWidget(const FString& WidgetType)
{
	return FindContentWidget(WidgetType) != nullptr;
}

void SetContent(TSharedRef<SWidget> Child, TSharedRef<SWidget> Parent)
{
	const FString ParentType = Parent->GetType().ToString();
	const FContentWidget* Widget = FindContentWidget(ParentType);
	if (Widget == nullptr)
	{
		UE_LOG(Velmora, Warning, TEXT("SetContent On Type: %s "), *ParentType);
		return;
	}
	Widget->SetContent(*Parent, Child);
}
