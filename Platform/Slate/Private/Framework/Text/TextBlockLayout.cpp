#include "Framework/Text/TextBlockLayout.h"

FTextBlockLayout::FTextBlockLayout()
	: Document(true)
	, Rows(Document)
{
}

void FTextBlockLayout::Update(
	const FString& Text, const FSlateFontInfo& Font, float Scale, const FTextRowFormat& Format, float ViewWidth)
{
	if (!Document.Equals(Text))
	{
		Document.SetText(Text);
		Rows.OnReset();
	}
	FontOfRows.Apply(Rows, Font, Scale);
	Rows.SetFormat(Format);
	Rows.SetViewWidth(ViewWidth);
}
