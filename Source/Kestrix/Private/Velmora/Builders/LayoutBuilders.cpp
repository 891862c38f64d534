#include "Velmora/Builders/LayoutBuilders.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "NameOfText.h"
#include "Velmora/StyleParsers.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

TSharedRef<SBox> ParseSBox(const TSharedPtr<FJsonObject>& Object)
{
	return SNew(SBox);
}

TSharedRef<SHorizontalBox> ParseSHorizontalBox(const TSharedPtr<FJsonObject>& Object)
{
	return SNew(SHorizontalBox);
}

TSharedRef<SScrollBox> ParseSScrollBox(const TSharedPtr<FJsonObject>& Object)
{
	return SNew(SScrollBox);
}

TSharedRef<SVerticalBox> ParseSVerticalBox(const TSharedPtr<FJsonObject>& Object)
{
	return SNew(SVerticalBox);
}

TSharedRef<SBorder> ParseSBorder(const TSharedPtr<FJsonObject>& Object)
{
	const TSharedRef<SBorder> Border = SNew(SBorder);

	const TSharedPtr<FJsonObject>* Image = nullptr;
	if (!Object->TryGetObjectField(TEXT("BorderImage"), Image))
	{
		return Border;
	}
	const FString Style = (*Image)->GetStringField(TEXT("Style"));
	const FString Brush = (*Image)->GetStringField(TEXT("Brush"));
	if (IsEditorStyleSet(Style))
	{
		Border->SetBorderImage(FAppStyle::Get().GetBrush(NameOfText(Brush)));
	}
	else
	{
		UE_LOG(Velmora, Warning, TEXT("Style: %s Not Support yet. Supperted Style: FEditorStyle and FCoreStyle."), *Style);
	}
	return Border;
}
