#include "Velmora/DecorationTable.h"

#include "Dom/JsonObject.h"
#include "Fonts/SlateFontInfo.h"
#include "ToolsSettings.h"
#include "Velmora/DecorationRow.h"
#include "Velmora/EventCommands.h"
#include "Velmora/StyleParsers.h"
#include "Velmora/ValueParsers.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/STextBlock.h"

// The entry that runs two names together is as tools have come to know it: neither of them takes these colours.
const TArray<FString> CompoundWidgetTypes = {
	TEXT("SScrollBox"),
	TEXT("SCheckBox"),
	TEXT("SSpinBox"),
	TEXT("SColorPicker"),
	TEXT("SDropTargetSBreadcrumbTrail"),
	TEXT("SThrobber"),
	TEXT("SBorder"),
	TEXT("SHeaderRow"),
	TEXT("SSeparator"),
	TEXT("SButton"),
	TEXT("SHyperlink"),
	TEXT("SMultiLineEditableTextBox"),
	TEXT("SEditableTextBox"),
	TEXT("SSearchBox"),
	TEXT("STreeView"),
	TEXT("SListView"),
	TEXT("SListView<MultiColumn>"),
	TEXT(""),
};

namespace
{
struct FNothing
{
};

bool ReadNothing(const TSharedPtr<FJsonValue>& Value, FNothing& Out)
{
	return true;
}

bool ReadNumber(const TSharedPtr<FJsonValue>& Value, float& Out)
{
	Out = ToFloat(Value->AsNumber());
	return true;
}

bool ReadBool(const TSharedPtr<FJsonValue>& Value, bool& Out)
{
	Out = Value->AsBool();
	return true;
}

bool ReadString(const TSharedPtr<FJsonValue>& Value, FString& Out)
{
	Out = Value->AsString();
	return true;
}

bool ReadText(const TSharedPtr<FJsonValue>& Value, FText& Out)
{
	Out = FText::FromString(Value->AsString());
	return true;
}

bool ReadPaddingValues(const TSharedPtr<FJsonValue>& Value, FMargin& Out)
{
	TArray<float> Numbers;
	return ParsePaddingValues(Value, Numbers, Out);
}

// clang-format off

const TValueReader<FNothing> AsNothing = { TEXT("none"), &ReadNothing };
const TValueReader<float> AsNumber = { TEXT("number"), &ReadNumber };
const TValueReader<bool> AsBool = { TEXT("bool"), &ReadBool };
const TValueReader<FString> AsString = { TEXT("string"), &ReadString };
const TValueReader<FText> AsText = { TEXT("text"), &ReadText };
const TValueReader<FMargin> AsPaddingValues = { TEXT("padding values"), &ReadPaddingValues };
const TValueReader<FMargin> AsMargin = { TEXT("margin"), &ParseMargin };
const TValueReader<FLinearColor> AsColor = { TEXT("color"), &ParseLinearColorValues };
const TValueReader<FVector2D> AsVector2D = { TEXT("2D vector"), &ParseVector2D };
const TValueReader<EHorizontalAlignment> AsHAlign = { TEXT("horizontal alignment"), &ParseHAlign };
const TValueReader<EVerticalAlignment> AsVAlign = { TEXT("vertical alignment"), &ParseVAlign };
const TValueReader<EOrientation> AsOrientation = { TEXT("orientation"), &ParseOrientation };
const TValueReader<EVisibility> AsVisibility = { TEXT("visibility"), &ParseVisibility };
const TValueReader<ETextWrappingPolicy> AsWrappingPolicy = { TEXT("wrapping policy"), &ParseTextWrappingPolicy };
const TValueReader<ETextJustify::Type> AsJustification = { TEXT("justification"), &ParseJustification };
const TValueReader<FSlateFontInfo> AsFont = { TEXT("font"), &ParseFontInfo };
const TValueReader<const FTextBlockStyle*> AsTextStyle = { TEXT("text style"), &ParseWidgetStyle<FTextBlockStyle> };
const TValueReader<const FEditableTextBoxStyle*> AsTextBoxStyle = { TEXT("text box style"),
	&ParseWidgetStyle<FEditableTextBoxStyle> };

// Setters that several widget classes have under one name.
const auto SetAutoWrapText = [](auto& Widget, bool bValue) { Widget.SetAutoWrapText(bValue); };
const auto SetColorAndOpacity = [](auto& Widget, const FLinearColor& Value) { Widget.SetColorAndOpacity(Value); };
const auto SetHAlign = [](auto& Widget, EHorizontalAlignment Value) { Widget.SetHAlign(Value); };
const auto SetHintText = [](auto& Widget, const FText& Value) { Widget.SetHintText(Value); };
const auto SetIsReadOnly = [](auto& Widget, bool bValue) { Widget.SetIsReadOnly(bValue); };
const auto SetJustification = [](auto& Widget, ETextJustify::Type Value) { Widget.SetJustification(Value); };
const auto SetLineHeight = [](auto& Widget, float Value) { Widget.SetLineHeightPercentage(Value); };
const auto SetStyle = [](auto& Widget, const FEditableTextBoxStyle* Value) { Widget.SetStyle(Value); };
const auto SetText = [](auto& Widget, const FText& Value) { Widget.SetText(Value); };
const auto SetVAlign = [](auto& Widget, EVerticalAlignment Value) { Widget.SetVAlign(Value); };

// clang-format on

/** A button shows its text in the text block that it was made with; another content is left alone. */
bool SetButtonText(const FDecorationSite& Site, const FText& Value)
{
	const TSharedRef<SWidget> Content = static_cast<SBorder&>(Site.Widget).GetContent();
	const bool bIsTextBlock = Content->GetType() == FName("STextBlock");
	if (bIsTextBlock)
	{
		StaticCastSharedRef<STextBlock>(Content)->SetText(Value);
	}
	UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("Button content Type: %s"), *Content->GetType().ToString());
	return bIsTextBlock;
}

void SetButtonContentPadding(SButton& Button, FMargin Padding)
{
	const float HorizontalPadding = static_cast<float>(GetSButtonHorizontalPadding());
	Padding.Left += HorizontalPadding;
	Padding.Right += HorizontalPadding;
	Button.SetContentPadding(Padding);
}

bool RefuseSelectAllText(const FDecorationSite& Site, const bool& bValue)
{
	UE_LOG(Velmora, Error, TEXT("not supported 4.24 SelectAllTextWhenFocused at SMultiLineEditableTextBox "));
	return false;
}

void RegisterTick(SWidget& Widget, const FString& Command)
{
	if (!Command.IsEmpty())
	{
		Widget.RegisterActiveTimer(0.0f, MakeTickHandler(Command));
	}
}

FHandledElsewhere BySlotPass(const TCHAR* WidgetType)
{
	return {WidgetType, TEXT("Padding"), TEXT("handled In Add Slot..")};
}

FHandledElsewhere ByBuilder(const TCHAR* WidgetType, const TCHAR* Subject)
{
	return {WidgetType, Subject, TEXT("regard as handled.."), true};
}
}

const TArray<FDecoration>& GetDecorations()
{
	constexpr auto Unhandled = FDecorationColumns::EBadValue::Unhandled;
	constexpr auto Ignored = FDecorationColumns::EBadValue::Ignored;

	constexpr const TCHAR* Box = TEXT("SBox");
	constexpr const TCHAR* Border = TEXT("SBorder");
	constexpr const TCHAR* Button = TEXT("SButton");
	constexpr const TCHAR* ScrollBox = TEXT("SScrollBox");
	constexpr const TCHAR* TextBlock = TEXT("STextBlock");
	constexpr const TCHAR* TextBox = TEXT("SEditableTextBox");
	constexpr const TCHAR* MultiLine = TEXT("SMultiLineEditableTextBox");

	// clang-format off
	static const TArray<FDecoration> Rows = {
		Row(TEXT("OnTick"), AsString, {
			On<SWidget>(AnyWidget, &RegisterTick) }),
		Row(TEXT("WidthOverride"), AsNumber, {
			On<SBox>(Box, [](SBox& Widget, float Value) { Widget.SetWidthOverride(FOptionalSize(Value)); }) }),
		Row(TEXT("HeightOverride"), AsNumber, {
			On<SBox>(Box, [](SBox& Widget, float Value) { Widget.SetHeightOverride(FOptionalSize(Value)); }) }),
		Row(TEXT("MinDesiredWidth"), AsNumber, {
			On<SBox>(Box, [](SBox& Widget, float Value) { Widget.SetMinDesiredWidth(FOptionalSize(Value)); }),
			On<STextBlock>(TextBlock, [](STextBlock& Widget, float Value) { Widget.SetMinDesiredWidth(Value); }),
			On<SEditableTextBox>(TextBox, [](SEditableTextBox& Widget, float Value) { Widget.SetMinimumDesiredWidth(Value); }) }),
		Row(TEXT("MaxDesiredWidth"), AsNumber, {
			On<SBox>(Box, [](SBox& Widget, float Value) { Widget.SetMaxDesiredWidth(FOptionalSize(Value)); }) }),
		Row(TEXT("MinDesiredHeight"), AsNumber, {
			On<SBox>(Box, [](SBox& Widget, float Value) { Widget.SetMinDesiredHeight(FOptionalSize(Value)); }) }),
		Row(TEXT("MaxDesiredHeight"), AsNumber, {
			On<SBox>(Box, [](SBox& Widget, float Value) { Widget.SetMaxDesiredHeight(FOptionalSize(Value)); }) }),
		Row(TEXT("HAlign"), AsHAlign, {
			On<SBox>(Box, SetHAlign),
			On<SBorder>(Button, SetHAlign) }).WarnOnBadValue(TEXT("Can't find HAlign By Name: ")),
		Row(TEXT("VAlign"), AsVAlign, {
			On<SBox>(Box, SetVAlign),
			On<SBorder>(Button, SetVAlign) }).WarnOnBadValue(TEXT("Can't find VAlign By Name: ")),
		Row(TEXT("FillColumn"), AsNothing, {
			ByBuilder(TEXT("SGridPanel"), TEXT("FillColumn")) }),
		Row(TEXT("Text"), AsText, {
			On<STextBlock>(TextBlock, SetText),
			On<SEditableTextBox>(TextBox, SetText),
			On<SMultiLineEditableTextBox>(MultiLine, SetText),
			{ Button, &SetButtonText } }),
		Row(TEXT("HighLightText"), AsText, {}),
		Row(TEXT("WrappingPolicy"), AsWrappingPolicy, {}).OnBadValue(Unhandled),
		Row(TEXT("Margin"), AsMargin, {}).OnBadValue(Unhandled),
		Row(TEXT("ContentPadding"), AsMargin, {
			On<SButton>(Button, &SetButtonContentPadding) }).TypeTestFirst(),
		Row(TEXT("Orientation"), AsOrientation, {
			ByBuilder(TEXT("SSeparator"), TEXT("Orientation")),
			On<SScrollBox>(ScrollBox, [](SScrollBox& Widget, EOrientation Value) { Widget.SetOrientation(Value); }) }),
		Row(TEXT("Thickness"), AsNothing, {
			ByBuilder(TEXT("SSeparator"), TEXT("SSeparator")) }),
		Row(TEXT("Padding"), AsPaddingValues, {
			BySlotPass(ScrollBox),
			BySlotPass(TEXT("SVerticalBox")),
			BySlotPass(TEXT("SHorizontalBox")),
			BySlotPass(TEXT("SGridPanel")),
			BySlotPass(TEXT("SCheckBox")),
			BySlotPass(TEXT("SOverlay")),
			On<SBox>(Box, [](SBox& Widget, const FMargin& Value) { Widget.SetPadding(Value); }) }),
		Row(TEXT("ColorAndOpacity"), AsColor, {
			On<SCompoundWidget>(CompoundWidget, SetColorAndOpacity),
			On<SCompoundWidget>(ScrollBox, SetColorAndOpacity),
			On<STextBlock>(TextBlock, SetColorAndOpacity) }),
		Row(TEXT("ForegroundColor"), AsColor, {
			On<SCompoundWidget>(CompoundWidget,
				[](SCompoundWidget& Widget, const FLinearColor& Value) { Widget.SetForegroundColor(FSlateColor(Value)); }) }),
		Row(TEXT("Font"), AsFont, {
			On<STextBlock>(TextBlock, [](STextBlock& Widget, const FSlateFontInfo& Value) { Widget.SetFont(Value); }) }),
		Row(TEXT("Justification"), AsJustification, {
			On<STextBlock>(TextBlock, SetJustification),
			On<SEditableTextBox>(TextBox, SetJustification),
			On<SMultiLineEditableTextBox>(MultiLine, SetJustification) }).OnBadValue(Unhandled),
		Row(TEXT("ShadowOffset"), AsVector2D, {
			On<STextBlock>(TextBlock, [](STextBlock& Widget, const FVector2D& Value) { Widget.SetShadowOffset(Value); }) })
				.OnBadValue(Unhandled),
		Row(TEXT("ShadowColorAndOpacity"), AsColor, {
			On<STextBlock>(TextBlock,
				[](STextBlock& Widget, const FLinearColor& Value) { Widget.SetShadowColorAndOpacity(Value); }) })
				.OnBadValue(Unhandled),
		Row(TEXT("TextStyle"), AsTextStyle, {
			On<STextBlock>(TextBlock, [](STextBlock& Widget, const FTextBlockStyle* Value) { Widget.SetTextStyle(Value); }) })
				.OnBadValue(Unhandled),
		Row(TEXT("Style"), AsTextBoxStyle, {
			On<SEditableTextBox>(TextBox, SetStyle),
			On<SMultiLineEditableTextBox>(MultiLine, SetStyle) }).TypeTestFirst().OnBadValue(Unhandled),
		Row(TEXT("LineHeightPercentage"), AsNumber, {
			On<SMultiLineEditableTextBox>(MultiLine, SetLineHeight),
			On<STextBlock>(TextBlock, SetLineHeight) }),
		Row(TEXT("HintText"), AsText, {
			On<SEditableTextBox>(TextBox, SetHintText),
			On<SMultiLineEditableTextBox>(MultiLine, SetHintText) }),
		Row(TEXT("IsReadOnly"), AsBool, {
			On<SEditableTextBox>(TextBox, SetIsReadOnly),
			On<SMultiLineEditableTextBox>(MultiLine, SetIsReadOnly) }),
		Row(TEXT("SelectAllTextWhenFocused"), AsBool, {
			On<SEditableTextBox>(TextBox,
				[](SEditableTextBox& Widget, bool bValue) { Widget.SetSelectAllTextWhenFocused(bValue); }),
			{ MultiLine, &RefuseSelectAllText } }),
		Row(TEXT("AutoWrapText"), AsBool, {
			On<STextBlock>(TextBlock, SetAutoWrapText),
			On<SMultiLineEditableTextBox>(MultiLine, SetAutoWrapText) }),
		Row(TEXT("Size"), AsVector2D, {}).OnBadValue(Unhandled),
		Row(TEXT("ToolTipText"), AsText, {
			On<SWidget>(AnyWidget, [](SWidget& Widget, const FText& Value) { Widget.SetToolTipText(Value); }) }),
		Row(TEXT("Visibility"), AsVisibility, {
			On<SWidget>(AnyWidget, [](SWidget& Widget, EVisibility Value) { Widget.SetVisibility(Value); }) })
				.OnBadValue(Ignored),
		Row(TEXT("MinDesiredSlotWidth"), AsNumber, {}),
		Row(TEXT("MinDesiredSlotHeight"), AsNumber, {}),
		Row(TEXT("SlotPadding"), AsMargin, {}).IgnoredByOthers(),
		Row(TEXT("BorderBackgroundColor"), AsColor, {
			On<SBorder>(Border,
				[](SBorder& Widget, const FLinearColor& Value) { Widget.SetBorderBackgroundColor(FSlateColor(Value)); }) })
				.OnBadValue(Unhandled),
	};
	// clang-format on
	return Rows;
}
