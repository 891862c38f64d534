#include "Velmora/KeyTables.h"

#include "KestrixLog.h"

const TArray<FString> BehaviorKeys = {
	TEXT("Text"),
	TEXT("HAlign"),
	TEXT("VAlign"),
	TEXT("FillColumn"),
	TEXT("Padding"),
	TEXT("ColorAndOpacity"),
	TEXT("WidthOverride"),
	TEXT("HeightOverride"),
	TEXT("MinDesiredWidth"),
	TEXT("MaxDesiredWidth"),
	TEXT("MinDesiredHeight"),
	TEXT("MaxDesiredHeight"),
	TEXT("AutoHeight"),
	TEXT("AutoWidth"),
	TEXT("ContentPadding"),
	TEXT("Orientation"),
	TEXT("Thickness"),
	TEXT("Font"),
	TEXT("Justification"),
	TEXT("ShadowOffset"),
	TEXT("ShadowColorAndOpacity"),
	TEXT("TextStyle"),
	TEXT("HintText"),
	TEXT("IsReadOnly"),
	TEXT("SelectAllTextWhenFocused"),
	TEXT("AutoWrapText"),
	TEXT("CheckBoxStyle"),
	TEXT("FillWidth"),
	TEXT("FillHeight"),
	TEXT("ItemHeight"),
	TEXT("Margin"),
	TEXT("IsChecked"),
	TEXT("ToolTipText"),
	TEXT("OnTextChanged"),
	TEXT("OnTextCommitted"),
	TEXT("DelayChangeNotificationWhiteTyping"),
	TEXT("Visibility"),
	TEXT("Size"),
	TEXT("ButtonColorAndOpacity"),
	TEXT("ForegroundColor"),
	TEXT("MinDesiredSlotWidth"),
	TEXT("MinDesiredSlotHeight"),
	TEXT("SlotPadding"),
	TEXT("ImagePath"),
	TEXT("ImagePathInPlugin"),
	TEXT("ButtonContent"),
	TEXT("OnGetMenuContent"),
	TEXT("HasDownArrow"),
	TEXT("HighlightText"),
	TEXT("WrapTextAt"),
	TEXT("WrappingPolicy"),
	TEXT("LineHeightPercentage"),
	TEXT("Marshaller"),
	TEXT("RichText"),
	TEXT("DecoratorStyleSet"),
	TEXT("ButtonStyle"),
	TEXT("Style"),
	TEXT("Position"),
	TEXT("EnableAnimatedScrolling"),
	TEXT("OnTick"),
	TEXT("BorderBackgroundColor"),
	TEXT("BorderImage"),
	TEXT("BodyBorderImage"),
	TEXT("HeaderPadding"),
	TEXT("AllowAnimatedTransition"),
	TEXT("InitiallyCollapsed"),
	TEXT("MinWidth"),
	TEXT("HeaderContent"),
	TEXT("BodyContent"),
};

const TArray<FString> WidgetTypes = {
	TEXT("SMultiLineEditableText"),
	TEXT("SRichTextBlock"),
	TEXT("SColorBlock"),
	TEXT("SColorWheel"),
	TEXT("SImage"),
	TEXT("SProgressBar"),
	TEXT("SSpacer"),
	TEXT("SSlider"),
	TEXT("STextBlock"),
	TEXT("SBox"),
	TEXT("SCanvas"),
	TEXT("SGridPanel"),
	TEXT("SUniformGridPanel"),
	TEXT("SOverlay"),
	TEXT("SUniformWrapPanel"),
	TEXT("SSplitter"),
	TEXT("SHorizontalBox"),
	TEXT("SVerticalBox"),
	TEXT("SComboButton"),
	TEXT("SComboBox"),
	TEXT("SEditableText"),
	TEXT("SHeader"),
	TEXT("SBreadcrumbTrail"),
	TEXT("SCheckBox"),
	TEXT("SColorPicker"),
	TEXT("SDropTarget"),
	TEXT("SScrollBox"),
	TEXT("SSpinBox"),
	TEXT("SThrobber"),
	TEXT("SExpandableArea"),
	TEXT("SBorder"),
	TEXT("SHeaderRow"),
	TEXT("SSeparator"),
	TEXT("SButton"),
	TEXT("SHyperlink"),
	TEXT("SMultiLineEditableTextBox"),
	TEXT("SEditableTextBox"),
	TEXT("SSearchBox"),
	TEXT("SListView"),
	TEXT("SListView<MultiColumn>"),
	TEXT("STreeView"),
	TEXT("SDetailsView"),
};

const TArray<FInbornKeys>& GetInbornKeys()
{
	constexpr EWidgetTypeTest Is = EWidgetTypeTest::Is;
	constexpr EWidgetTypeTest StartsWith = EWidgetTypeTest::StartsWith;
	constexpr EWidgetTypeTest Any = EWidgetTypeTest::Any;

	static const TArray<FInbornKeys> Rows = {
		{Is, {TEXT("SGridPanel")}, {TEXT("Column_Row")}},
		{Is, {TEXT("SUniformGridPanel")}, {TEXT("Column_Row")}},
		{Is, {TEXT("SSpinBox<NumericType>")},
			{TEXT("Type"), TEXT("MinValue"), TEXT("MaxValue"), TEXT("MinSliderValue"), TEXT("MaxSliderValue"), TEXT("Delta"),
				TEXT("Value"), TEXT("OnValueChanged")}},
		{Is, {TEXT("SButton")}, {TEXT("OnClick"), TEXT("ButtonColorAndOpacity"), TEXT("ButtonStyle"), TEXT("TextStyle")}},
		{Is, {TEXT("SComboButton")},
			{TEXT("ButtonColorAndOpacity"), TEXT("ButtonContent"), TEXT("HAlign"), TEXT("VAlign"), TEXT("Foreground"),
				TEXT("OnGetMenuContent"), TEXT("HasDownArrow"), TEXT("ContentPadding"), TEXT("ButtonStyle"),
				TEXT("ForegroundColor")}},
		{Is, {TEXT("SExpandableArea")},
			{TEXT("BorderImage"), TEXT("BodyBorderImage"), TEXT("Padding"), TEXT("HeaderPadding"),
				TEXT("AllowAnimatedTransition"), TEXT("InitiallyCollapsed"), TEXT("MinWidth"), TEXT("HeaderContent"),
				TEXT("BodyContent"), TEXT("OnAreaExpansionChanged")}},
		{Is, {TEXT("SSplitter")}, {TEXT("ResizeMode"), TEXT("PhysicalSplitterHandleSize")}},
		{Is, {TEXT("SBorder")}, {TEXT("BorderImage")}},
		{Is, {TEXT("SSeparator")}, {TEXT("Orientation"), TEXT("Thickness")}},
		{Is, {TEXT("SVerticalBox")}, {TEXT("AutoHeight"), TEXT("VAlign"), TEXT("HAlign"), TEXT("FillHeight")}},
		{Is, {TEXT("SHorizontalBox"), TEXT("SHeader")}, {TEXT("AutoWidth"), TEXT("VAlign"), TEXT("HAlign"), TEXT("FillWidth")}},
		{Is, {TEXT("SSplitter")}, {TEXT("Value"), TEXT("MinSizeValue")}},
		{Is, {TEXT("SCheckBox")},
			{TEXT("HAlign"), TEXT("Padding"), TEXT("OnCheckStateChanged"), TEXT("CheckBoxStyle"), TEXT("IsChecked")}},
		{StartsWith, {TEXT("SComboBox")}, {}},
		{Any, {}, {TEXT("OptionSource")}},
		{StartsWith, {TEXT("SHeaderRow")}, {}},
		{Any, {}, {TEXT("Columns")}},
		{StartsWith, {TEXT("SListView")},
			{TEXT("ItemHeight"), TEXT("ListItemsSource"), TEXT("OnSelectedChanged"), TEXT("OnSelectionChanged"),
				TEXT("OnContextMenuOpening"), TEXT("OnMouseButtonDoubleClick"), TEXT("RichText"),
				TEXT("EnableAnimatedScrolling")},
			TEXT("OnSelectedChanged"), TEXT("OnSelectionChanged")},
		{StartsWith, {TEXT("STreeView")},
			{TEXT("ItemHeight"), TEXT("TreeItemsSource"), TEXT("OnSelectionChanged"), TEXT("OnContextMenuOpening"),
				TEXT("OnMouseButtonDoubleClick")}},
		{Is, {TEXT("SEditableTextBox"), TEXT("SEditableText"), TEXT("SMultiLineEditableText"), TEXT("SMultiLineEditableTextBox")},
			{TEXT("OnTextCommitted"), TEXT("OnTextChanged"), TEXT("Marshaller")}},
		{Is, {TEXT("SEditableTextBox")}, {TEXT("OnContextMenuOpening")}},
		{Is, {TEXT("SRichTextBlock"), TEXT("SMultiLineEditableText"), TEXT("SMultiLineEditableTextBox")}, {TEXT("Marshaller")}},
		{Is, {TEXT("SRichTextBlock")}, {TEXT("DecoratorStyleSet")}},
		{Is, {TEXT("SMultiLineEditableText"), TEXT("SMultiLineEditableTextBox")}, {TEXT("Margin"), TEXT("Padding")}},
		{Is, {TEXT("SMultiLineEditableTextBox")}, {TEXT("AlwaysShowScrollbars")}},
		{StartsWith, {TEXT("SBreadcrumbTrail")}, {TEXT("Type"), TEXT("OnCrumbClick"), TEXT("ButtonContentPadding")}},
		{Is, {TEXT("SSearchBox")}, {TEXT("OnTextChanged"), TEXT("OnTextCommitted"), TEXT("DelayChangeNotificationWhiteTyping")}},
		{Is, {TEXT("SHyperlink")}, {TEXT("Style"), TEXT("Text"), TEXT("ToolTipText"), TEXT("OnNavigate")}},
		{Is, {TEXT("SThrobber")}, {TEXT("Animate"), TEXT("NumPieces")}},
		{Is, {TEXT("SSlider")}, {TEXT("Value"), TEXT("Locked"), TEXT("OnValueChanged")}},
		{Is, {TEXT("SProgressBar")}, {TEXT("FillType"), TEXT("Percent")}},
		{Is, {TEXT("SImage")},
			{TEXT("ImagePath"), TEXT("ImagePathInPlugin"), TEXT("Image"), TEXT("OnMouseButtonDown"), TEXT("DesiredSizeOverride"),
				TEXT("OnMouseEnter"), TEXT("OnMouseMove"), TEXT("OnMouseLeave")}},
		{StartsWith, {TEXT("STreeView")}, {TEXT("TreeItemSource"), TEXT("TreeItemParentIndices")}},
		{StartsWith, {TEXT("SColorBlock")},
			{TEXT("Color"), TEXT("UseSRGB"), TEXT("ColorIsHSV"), TEXT("ShowBackgroundForAlpha"), TEXT("Size"),
				TEXT("OnMouseButtonDown")}},
		{Is, {TEXT("SCanvas")}, {TEXT("Position"), TEXT("Size")}},
		{Is, {TEXT("SDropTarget")}, {TEXT("OnDrop")}},
		{Is, {TEXT("SUniformWrapPanel")}, {TEXT("EvenRowDistribution")}},
		{Any, {}, {TEXT("OnTick")}},
	};
	return Rows;
}

bool IsSameKey(const FString& A, const TCHAR* B)
{
	return FCString::Stricmp(*A, B) == 0;
}

namespace
{
bool ContainsKey(const TArray<FString>& Keys, const FString& Key)
{
	return Keys.ContainsByPredicate([&Key](const FString& Entry) { return Entry.Len() == Key.Len() && IsSameKey(Key, *Entry); });
}

bool HoldsFor(const FInbornKeys& Row, const FString& WidgetType)
{
	switch (Row.Test)
	{
		case EWidgetTypeTest::Is:
			return ContainsKey(Row.WidgetTypes, WidgetType);
		case EWidgetTypeTest::StartsWith:
			return WidgetType.StartsWith(Row.WidgetTypes[0], ESearchCase::IgnoreCase);
		case EWidgetTypeTest::Any:
			return true;
	}
	return false;
}
}

bool InbornDecorate(const FString& WidgetType, const FString& Key)
{
	for (const FInbornKeys& Row : GetInbornKeys())
	{
		if (!HoldsFor(Row, WidgetType))
		{
			continue;
		}
		if (!Row.DeprecatedKey.IsEmpty() && IsSameKey(Key, *Row.DeprecatedKey))
		{
			UE_LOG(PythonKX, Warning, TEXT("Key words \"%s\" as been deprecated, Please use \"%s\" instead."), *Row.DeprecatedKey,
				*Row.ReplacementKey);
		}
		if (Row.Keys.Num() == 0 || ContainsKey(Row.Keys, Key))
		{
			return true;
		}
	}
	return false;
}

bool IsBehaviorKey(const FString& Key)
{
	return ContainsKey(BehaviorKeys, Key);
}

bool IsWidgetTypeKey(const FString& Key)
{
	return ContainsKey(WidgetTypes, Key);
}

bool IsAkaKey(const FString& Key)
{
	return IsSameKey(Key, TEXT("Aka"));
}

bool IsSlotsKey(const FString& Key)
{
	return Key.Equals(TEXT("Slots"), ESearchCase::CaseSensitive);
}

bool IsContentKey(const FString& Key)
{
	return Key.Equals(TEXT("Content"), ESearchCase::CaseSensitive);
}
