#include "Velmora/Builders/ChoiceBuilders.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Styling/SlateTypes.h"
#include "ToolsSettings.h"
#include "Velmora/Builders/KeyReaders.h"
#include "Velmora/EventCommands.h"
#include "Velmora/StyleParsers.h"
#include "Velmora/ValueParsers.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"

TSharedRef<SButton> ParseSButton(const TSharedPtr<FJsonObject>& Object, const FString& Path, SVelmoraWidget* Context)
{
	const FLinearColor Color = ReadColor(*Object, TEXT("ButtonColorAndOpacity"), FLinearColor::White);
	const FString Command = FillWidgetPath(ReadTypedString(*Object, TEXT("OnClick")), Path / TEXT("SButton"));

	const FTextBlockStyle* TextStyle = SButton::FArguments()._TextStyle;
	ReadWidgetStyle(*Object, TEXT("TextStyle"), TextStyle);

	// The blank gives the button a text block, which the key "Text" fills.
	// clang-format off
	const TSharedRef<SButton> Button = SNew(SButton)
		.Text(FText::FromString(TEXT(" ")))
		.ButtonColorAndOpacity(Color)
		.TextStyle(TextStyle)
		.OnClicked(MakeClickHandler(Command));
	// clang-format on

	const FButtonStyle* ButtonStyle = nullptr;
	if (ReadWidgetStyle(*Object, TEXT("ButtonStyle"), ButtonStyle))
	{
		Button->SetButtonStyle(ButtonStyle);
	}
	if (const int32 HorizontalPadding = GetSButtonHorizontalPadding())
	{
		Button->SetContentPadding(FMargin(static_cast<float>(HorizontalPadding), 0.0f));
	}
	return Button;
}

TSharedRef<SCheckBox> ParseSCheckBox(const TSharedPtr<FJsonObject>& Object)
{
	const FMargin Padding = ReadMargin(*Object, TEXT("Padding"));

	EHorizontalAlignment HAlign = HAlign_Fill;
	const TSharedPtr<FJsonValue> HAlignValue = Object->TryGetField(TEXT("HAlign"));
	if (HAlignValue.IsValid() && !ParseHAlign(HAlignValue, HAlign))
	{
		UE_LOG(Velmora, Warning, TEXT("Parse HAlign Failed when ParseSCheckBox()"));
	}

	FOnCheckStateChanged OnCheckStateChanged;
	if (Object->HasTypedField<EJson::String>(TEXT("OnCheckStateChanged")))
	{
		OnCheckStateChanged = MakeCheckHandler(Object->GetStringField(TEXT("OnCheckStateChanged")));
	}
	const bool bIsChecked = Object->HasTypedField<EJson::Boolean>(TEXT("IsChecked")) && Object->GetBoolField(TEXT("IsChecked"));

	// clang-format off
	const TSharedRef<SCheckBox> CheckBox = SNew(SCheckBox)
		.Padding(Padding)
		.HAlign(HAlign)
		.IsChecked(bIsChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked)
		.OnCheckStateChanged(OnCheckStateChanged);
	// clang-format on

	const FCheckBoxStyle* Style = nullptr;
	if (ReadWidgetStyle(*Object, TEXT("CheckBoxStyle"), Style))
	{
		CheckBox->SetStyle(Style);
	}
	return CheckBox;
}
