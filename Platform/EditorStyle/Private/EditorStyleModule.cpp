#include "Brushes/SlateRoundedBoxBrush.h"
#include "Modules/ModuleManager.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Styling/Palette.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{
/** The looks of the editor's own panels. What it does not name is the core style's. */
class FEditorStyleSet final : public FSlateStyleSet
{
public:
	FEditorStyleSet()
		: FSlateStyleSet("EditorStyle")
	{
		SetParentStyleName(FCoreStyle::Get().GetStyleSetName());
		Set("ToolPanel.GroupBorder", MakeGroup(Palette::Panel));
		Set("ToolPanel.DarkGroupBorder", MakeGroup(Palette::DarkPanel));
	}

private:
	static FSlateBrush* MakeGroup(const FColor& Color)
	{
		return new FSlateRoundedBoxBrush(
			FSlateColor(FLinearColor(Color)), 4.0f, FSlateColor(FLinearColor(Palette::Outline)), 1.0f);
	}
};

class FEditorStyleModule final : public IModuleInterface
{
	virtual void StartupModule() override
	{
		Style = MakeUnique<FEditorStyleSet>();
		FSlateStyleRegistry::RegisterSlateStyle(*Style);
		FAppStyle::SetAppStyleSetName(Style->GetStyleSetName());
	}

	virtual void ShutdownModule() override
	{
		FAppStyle::SetAppStyleSetName(NAME_None);
		FSlateStyleRegistry::UnRegisterSlateStyle(*Style);
		Style.Reset();
	}

	TUniquePtr<FEditorStyleSet> Style;
};
}

IMPLEMENT_MODULE(FEditorStyleModule, EditorStyle)
