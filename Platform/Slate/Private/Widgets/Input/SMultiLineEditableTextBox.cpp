#include "Widgets/Input/SMultiLineEditableTextBox.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SBoxPanel.h"

void SMultiLineEditableTextBox::Construct(const FArguments& InArgs)
{
	const FScrollBarStyle* const BarStyle = InArgs._Style ? &InArgs._Style->ScrollBarStyle : nullptr;
	const TSharedRef<SScrollBar> HScrollBar =
		SNew(SScrollBar).Style(BarStyle).Orientation(Orient_Horizontal).AlwaysShowScrollbar(InArgs._AlwaysShowScrollbars);
	const TSharedRef<SScrollBar> VScrollBar =
		SNew(SScrollBar).Style(BarStyle).Orientation(Orient_Vertical).AlwaysShowScrollbar(InArgs._AlwaysShowScrollbars);

	SAssignNew(EditableText, SMultiLineEditableText)
		.Text(InArgs._Text)
		.HintText(InArgs._HintText)
		.TextStyle(InArgs._TextStyle)
		.WrapTextAt(InArgs._WrapTextAt)
		.AutoWrapText(InArgs._AutoWrapText)
		.WrappingPolicy(InArgs._WrappingPolicy)
		.Margin(InArgs._Margin)
		.LineHeightPercentage(InArgs._LineHeightPercentage)
		.Justification(InArgs._Justification)
		.RevertTextOnEscape(InArgs._RevertTextOnEscape)
		.HScrollBar(HScrollBar)
		.VScrollBar(VScrollBar)
		.OnTextChanged(InArgs._OnTextChanged)
		.OnTextCommitted(InArgs._OnTextCommitted);

	// clang-format off
	const TSharedRef<SWidget> Content =
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			[
				SAssignNew(Room, SBox)
				[
					EditableText.ToSharedRef()
				]
			]
			+ SVerticalBox::Slot().AutoHeight()
			[
				HScrollBar
			]
		]
		+ SHorizontalBox::Slot().AutoWidth()
		[
			VScrollBar
		];
	// clang-format on

	if (InArgs._Padding.IsSet())
	{
		OwnPadding = InArgs._Padding.Get();
	}
	ConstructFrame({InArgs._Style, InArgs._Font, InArgs._ForegroundColor, InArgs._BackgroundColor, InArgs._IsReadOnly},
		EditableText.ToSharedRef(), Content);
}

void SMultiLineEditableTextBox::OnStyleChanged()
{
	Room->SetPadding(OwnPadding.Get(GetStyle().Padding));
}
