#include "Velmora/VelmoraData.h"

#include "KestrixLog.h"
#include "Velmora/DecorationTable.h"
#include "Velmora/ValueParsers.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** A widget is what the text of its type says, in any case. */
bool IsOfType(const SWidget& Widget, const TCHAR* Type)
{
	return Widget.GetType() == FName(Type);
}

FString TypeOf(const SWidget& Widget)
{
	return Widget.GetType().ToString();
}

/** How scripts reach the text of a widget type. */
struct FTextWidget
{
	const TCHAR* Type;
	bool (*GetText)(const SWidget& Widget, FString& OutText);
	void (*SetText)(SWidget& Widget, const FText& Text);

	/** Null where the user cannot edit the text. */
	void (*SetIsReadOnly)(SWidget& Widget, bool bReadOnly);
};

template <typename T>
bool GetTextOf(const SWidget& Widget, FString& OutText)
{
	OutText = static_cast<const T&>(Widget).GetText().ToString();
	return true;
}

template <typename T>
void SetTextOf(SWidget& Widget, const FText& Text)
{
	static_cast<T&>(Widget).SetText(Text);
}

template <typename T>
void SetReadOnlyOf(SWidget& Widget, bool bReadOnly)
{
	static_cast<T&>(Widget).SetIsReadOnly(bReadOnly);
}

bool GetTextOfButton(const SWidget& Widget, FString& OutText)
{
	const TSharedRef<SWidget> Content = static_cast<const SBorder&>(Widget).GetContent();
	return IsOfType(*Content, TEXT("STextBlock")) && GetTextOf<STextBlock>(*Content, OutText);
}

void SetTextOfButton(SWidget& Widget, const FText& Text)
{
	SBorder& Button = static_cast<SBorder&>(Widget);
	const TSharedRef<SWidget> Content = Button.GetContent();
	if (IsOfType(*Content, TEXT("STextBlock")))
	{
		SetTextOf<STextBlock>(*Content, Text);
		return;
	}
	Button.SetContent(SNew(STextBlock).Text(Text));
}

const FTextWidget TextWidgets[] = {
	{TEXT("STextBlock"), &GetTextOf<STextBlock>, &SetTextOf<STextBlock>, nullptr},
	{TEXT("SEditableTextBox"), &GetTextOf<SEditableTextBox>, &SetTextOf<SEditableTextBox>, &SetReadOnlyOf<SEditableTextBox>},
	{TEXT("SMultiLineEditableTextBox"), &GetTextOf<SMultiLineEditableTextBox>, &SetTextOf<SMultiLineEditableTextBox>,
		&SetReadOnlyOf<SMultiLineEditableTextBox>},
	{TEXT("SButton"), &GetTextOfButton, &SetTextOfButton, nullptr},
};

const FTextWidget* FindTextWidget(const SWidget& Widget)
{
	for (const FTextWidget& TextWidget : TextWidgets)
	{
		if (IsOfType(Widget, TextWidget.Type))
		{
			return &TextWidget;
		}
	}
	return nullptr;
}
}

bool UVelmoraData::GetText(FName AkaName, FString& OutText)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	const FTextWidget* const TextWidget = Widget.IsValid() ? FindTextWidget(*Widget) : nullptr;
	return TextWidget != nullptr && TextWidget->GetText(*Widget, OutText);
}

void UVelmoraData::SetText(FName AkaName, FString Text)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	const FTextWidget* const TextWidget = Widget.IsValid() ? FindTextWidget(*Widget) : nullptr;
	if (TextWidget != nullptr)
	{
		TextWidget->SetText(*Widget, FText::FromString(Text));
	}
}

void UVelmoraData::SetTextReadOnly(FName AkaName, bool bReadOnly)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	if (!Widget.IsValid())
	{
		return;
	}
	const FTextWidget* const TextWidget = FindTextWidget(*Widget);
	if (TextWidget == nullptr || TextWidget->SetIsReadOnly == nullptr)
	{
		UE_LOG(PythonKX, Log, TEXT("SetTextReadOnly @ AkaName: %s is not supported. widget type: %s"), *AkaName.ToString(),
			*TypeOf(*Widget));
		return;
	}
	TextWidget->SetIsReadOnly(*Widget, bReadOnly);
}

bool UVelmoraData::ScrollTo(FName AkaName, int32 LineIndex, const int32 Offset)
{
	const TSharedPtr<SWidget> Widget = FindWidget(AkaName);
	if (!Widget.IsValid())
	{
		UE_LOG(PythonKX, Log, TEXT("'ScrollTo failed', can't find Widget: %s"), *AkaName.ToString());
		return false;
	}
	if (!IsOfType(*Widget, TEXT("SMultiLineEditableTextBox")))
	{
		UE_LOG(PythonKX, Log, TEXT("'ScrollTo failed', Widget is not a SMultiLineEditableTextBox: %s"), *AkaName.ToString());
		return false;
	}
	SMultiLineEditableTextBox& TextBox = static_cast<SMultiLineEditableTextBox&>(*Widget);
	if (LineIndex > -1)
	{
		TextBox.ScrollTo(FTextLocation(LineIndex, Offset));
	}
	else
	{
		TextBox.ScrollTo(ETextLocation::EndOfDocument);
	}
	return true;
}

bool UVelmoraData::GetIsChecked(FName AkaName)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	if (!Widget.IsValid())
	{
		return false;
	}
	if (!IsOfType(*Widget, TEXT("SCheckBox")))
	{
		UE_LOG(PythonKX, Warning, TEXT("GetIsChecked not supported for %s. It's for SCheckBox"), *AkaName.ToString());
		return false;
	}
	return static_cast<const SCheckBox&>(*Widget).IsChecked();
}

void UVelmoraData::SetIsChecked(FName AkaName, bool bChecked)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	if (!Widget.IsValid())
	{
		return;
	}
	if (!IsOfType(*Widget, TEXT("SCheckBox")))
	{
		UE_LOG(PythonKX, Warning, TEXT("SetIsChecked not supported for %s. It's for SCheckBox"), *AkaName.ToString());
		return;
	}
	static_cast<SCheckBox&>(*Widget).SetIsChecked(bChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked);
}

bool UVelmoraData::SetVisibility(FName AkaName, FString VisibilityStr)
{
	const TSharedPtr<SWidget> Widget = FindWidget(AkaName);
	if (!Widget.IsValid())
	{
		return false;
	}
	EVisibility Visibility;
	if (!FindVisibility(VisibilityStr, Visibility))
	{
		UE_LOG(PythonKX, Error, TEXT("%s"), VisibilityHelp);
		return false;
	}
	Widget->SetVisibility(Visibility);
	return true;
}

void UVelmoraData::SetCollapsed(FName AkaName, bool bCollapsed)
{
	if (const TSharedPtr<SWidget> Widget = FindWidget(AkaName))
	{
		Widget->SetVisibility(bCollapsed ? EVisibility::Collapsed : EVisibility::Visible);
	}
}

void UVelmoraData::SetColorAndOpacity(FName AkaName, FLinearColor Color)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	if (!Widget.IsValid())
	{
		return;
	}
	const FString Type = TypeOf(*Widget);
	if (CompoundWidgetTypes.Contains(Type))
	{
		static_cast<SCompoundWidget&>(*Widget).SetColorAndOpacity(Color);
	}
	else if (IsOfType(*Widget, TEXT("STextBlock")))
	{
		static_cast<STextBlock&>(*Widget).SetColorAndOpacity(FSlateColor(Color));
	}
	else
	{
		UE_LOG(PythonKX, Log, TEXT("SetColorAndOpacity not supported for %s, yet"), *AkaName.ToString());
	}
}

void UVelmoraData::SetButtonColorAndOpacity(FName AkaName, FLinearColor Color)
{
	const TSharedPtr<SWidget> Widget = GetNamedWidget(AkaName);
	if (!Widget.IsValid())
	{
		return;
	}
	if (!IsOfType(*Widget, TEXT("SButton")))
	{
		UE_LOG(PythonKX, Warning, TEXT("SetColorAndOpacity not supported for %s, yet"), *AkaName.ToString());
		return;
	}
	static_cast<SBorder&>(*Widget).SetBorderBackgroundColor(FSlateColor(Color));
}

void UVelmoraData::SetToolTipText(FName AkaName, const FString& ToolTipText)
{
	const TSharedPtr<SWidget> Widget = FindWidget(AkaName);
	if (!Widget.IsValid())
	{
		UE_LOG(PythonKX, Log, TEXT("SetToolTip failed, can't find Widget: %s"), *AkaName.ToString());
		return;
	}
	Widget->SetToolTipText(FText::FromString(ToolTipText));
}

TMap<FString, float> UVelmoraData::GetScrollBoxOffsets(FName AkaName)
{
	const TSharedPtr<SWidget> Widget = FindWidget(AkaName);
	if (!Widget.IsValid())
	{
		UE_LOG(PythonKX, Log, TEXT("GetScrollBoxOffsets failed, can't find Widget: %s"), *AkaName.ToString());
		return {};
	}
	if (!IsOfType(*Widget, TEXT("SScrollBox")))
	{
		UE_LOG(PythonKX, Log, TEXT("'GetScrollBoxOffsets failed', Widget is not a SScrollBox: %s"), *AkaName.ToString());
		return {};
	}
	const SScrollBox& ScrollBox = static_cast<const SScrollBox&>(*Widget);
	const float Offset = ScrollBox.GetScrollOffset();
	const float ViewFraction = ScrollBox.GetViewFraction();
	const float ViewOffsetFraction = ScrollBox.GetViewOffsetFraction();
	const float OffsetOfEnd = ScrollBox.GetScrollOffsetOfEnd();
	UE_LOG(PythonKX, Log, TEXT("LogScrollBox: offset %f, viewFraction: %f, viewOffsetFraction: %f, ScrollOffsetOfEnd: %f"),
		Offset, ViewFraction, ViewOffsetFraction, OffsetOfEnd);
	return {{TEXT("Offset"), Offset}, {TEXT("ViewFraction"), ViewFraction}, {TEXT("ViewOffsetFraction"), ViewOffsetFraction},
		{TEXT("ScrollOffsetOfEnd"), OffsetOfEnd}};
}

bool UVelmoraData::SetScrollBoxOffset(FName AkaName, float Offset)
{
	const TSharedPtr<SWidget> Widget = FindWidget(AkaName);
	if (!Widget.IsValid())
	{
		UE_LOG(PythonKX, Log, TEXT("SetScrollBoxOffset--- failed, can't find Widget: %s"), *AkaName.ToString());
		return false;
	}
	if (!IsOfType(*Widget, TEXT("SScrollBox")))
	{
		UE_LOG(PythonKX, Log, TEXT("'SetScrollBoxOffset failed', Widget is not a SScrollBox: %s"), *AkaName.ToString());
		return false;
	}
	static_cast<SScrollBox&>(*Widget).SetScrollOffset(Offset);
	return true;
}
