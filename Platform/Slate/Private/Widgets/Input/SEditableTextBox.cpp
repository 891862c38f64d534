#include "Widgets/Input/SEditableTextBox.h"

#include "Widgets/Layout/SBox.h"

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	SAssignNew(EditableText, SEditableText)
		.Text(InArgs._Text)
		.HintText(InArgs._HintText)
		.IsPassword(InArgs._IsPassword)
		.SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused)
		.RevertTextOnEscape(InArgs._RevertTextOnEscape)
		.ClearKeyboardFocusOnCommit(InArgs._ClearKeyboardFocusOnCommit)
		.Justification(InArgs._Justification)
		.MinDesiredWidth(InArgs._MinDesiredWidth)
		.OnTextChanged(InArgs._OnTextChanged)
		.OnTextCommitted(InArgs._OnTextCommitted);
	SAssignNew(Room, SBox).VAlign(VAlign_Center)[EditableText.ToSharedRef()];

	if (InArgs._Padding.IsSet())
	{
		OwnPadding = InArgs._Padding.Get();
	}
	ConstructFrame({InArgs._Style, InArgs._Font, InArgs._ForegroundColor, InArgs._BackgroundColor, InArgs._IsReadOnly},
		EditableText.ToSharedRef(), Room.ToSharedRef());
}

void SEditableTextBox::OnStyleChanged()
{
	EditableText->SetTextStyle(GetStyle().TextStyle);
	Room->SetPadding(OwnPadding.Get(GetStyle().Padding));
}
