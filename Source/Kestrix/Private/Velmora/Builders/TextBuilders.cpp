#include "Velmora/Builders/TextBuilders.h"

#include "KestrixLog.h"
#include "Velmora/Builders/KeyReaders.h"
#include "Velmora/EventCommands.h"
#include "Velmora/KeyTables.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** Text is shaped by a rich text marshaller or by none; a wrong name counts as none. */
void CheckMarshaller(const FJsonObject& Object)
{
	FString Marshaller;
	if (Object.TryGetStringField(TEXT("Marshaller"), Marshaller) && !IsSameKey(Marshaller, TEXT("VelmoraRichText")))
	{
		UE_LOG(Velmora, Error, TEXT("Marshaller Name: %s is not support yet.  Supperted Marshalle: \"VelmoraRichText\""),
			*Marshaller);
	}
}
}

TSharedRef<STextBlock> ParseSTextBlock(const TSharedPtr<FJsonObject>& Object)
{
	return SNew(STextBlock);
}

TSharedRef<SEditableTextBox> ParseSEditableTextBox(const TSharedPtr<FJsonObject>& Object)
{
	return SNew(SEditableTextBox)
		.OnTextChanged(MakeTextChangedHandler(ReadString(*Object, TEXT("OnTextChanged"))))
		.OnTextCommitted(MakeTextCommittedHandler(ReadString(*Object, TEXT("OnTextCommitted"))));
}

TSharedRef<SMultiLineEditableTextBox> ParseSMultiLineEditableTextBox(const TSharedPtr<FJsonObject>& Object)
{
	const FMargin Padding = ReadMargin(*Object, TEXT("Padding"));
	const FMargin Margin = ReadMargin(*Object, TEXT("Margin"));
	const bool bAlwaysShowScrollbars = ReadBool(*Object, TEXT("AlwaysShowScrollbars"));
	CheckMarshaller(*Object);

	return SNew(SMultiLineEditableTextBox)
		.Padding(Padding)
		.Margin(Margin)
		.AlwaysShowScrollbars(bAlwaysShowScrollbars)
		.OnTextChanged(MakeTextChangedHandler(ReadString(*Object, TEXT("OnTextChanged"))))
		.OnTextCommitted(MakeTextCommittedHandler(ReadString(*Object, TEXT("OnTextCommitted"))));
}
