#include "Rendering/DrawElements.h"

FSlateDrawElement& FSlateDrawElement::Add(FSlateWindowElementList& ElementList, EElementType Type, uint32 InLayer,
	const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, int32 Payload)
{
	FSlateDrawElement& Element = ElementList.Elements.AddDefaulted_GetRef();
	Element.X = float(PaintGeometry.DrawPosition.X);
	Element.Y = float(PaintGeometry.DrawPosition.Y);
	Element.Width = float(PaintGeometry.GetLocalSize().X);
	Element.Height = float(PaintGeometry.GetLocalSize().Y);
	Element.Scale = PaintGeometry.DrawScale;
	Element.Tint = InTint;
	Element.Layer = InLayer;
	Element.ClippingIndex = ElementList.ClipStack.Last();
	Element.Payload = Payload;
	Element.RenderTransform = INDEX_NONE;
	Element.Type = Type;
	Element.Effects = InDrawEffects;
	if (PaintGeometry.HasRenderTransform())
	{
		Element.RenderTransform = ElementList.RenderTransforms.Add(PaintGeometry.GetAccumulatedRenderTransform());
	}
	return Element;
}

bool FSlateDrawElement::IsHidden(const FSlateWindowElementList& ElementList, const FLinearColor& InTint)
{
	return InTint.A <= 0.0f || ElementList.GetCurrentClip().IsEmpty();
}

void FSlateDrawElement::MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FSlateBrush* InBrush, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (!InBrush || InBrush->GetDrawType() == ESlateBrushDrawType::NoDrawType || ElementList.GetCurrentClip().IsEmpty())
	{
		return;
	}
	// The outline of a rounded box has a colour of its own and shows without a fill.
	if (InTint.A <= 0.0f && InBrush->GetDrawType() != ESlateBrushDrawType::RoundedBox)
	{
		return;
	}
	const int32 Payload = ElementList.Brushes.Add(*InBrush);
	Add(ElementList, EElementType::Box, InLayer, PaintGeometry, InDrawEffects, InTint, Payload);
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FString& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	MakeText(ElementList, InLayer, PaintGeometry, InText, 0, InText.Len(), InFontInfo, InDrawEffects, InTint);
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FText& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	MakeText(ElementList, InLayer, PaintGeometry, InText.ToString(), InFontInfo, InDrawEffects, InTint);
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FString& InText, const int32 StartIndex, const int32 EndIndex, const FSlateFontInfo& InFontInfo,
	ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	const int32 NumCharacters = FMath::Min(EndIndex, InText.Len()) - StartIndex;
	if (NumCharacters <= 0 || IsHidden(ElementList, InTint))
	{
		return;
	}
	FSlateTextPayload Text;
	Text.FirstCharacter = ElementList.Characters.Num();
	Text.NumCharacters = NumCharacters;
	Text.FontIndex = ElementList.FindOrAddFont(InFontInfo);
	ElementList.Characters.Append(*InText + StartIndex, NumCharacters);
	const int32 Payload = ElementList.Texts.Add(Text);
	Add(ElementList, EElementType::Text, InLayer, PaintGeometry, InDrawEffects, InTint, Payload);
}

void FSlateDrawElement::MakeShapedText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FShapedGlyphSequenceRef& InShapedGlyphSequence, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (InShapedGlyphSequence->GetText().IsEmpty() || IsHidden(ElementList, InTint))
	{
		return;
	}
	const int32 Payload = ElementList.ShapedTexts.Add(InShapedGlyphSequence);
	Add(ElementList, EElementType::ShapedText, InLayer, PaintGeometry, InDrawEffects, InTint, Payload);
}

void FSlateDrawElement::MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const TArray<FVector2D>& Points, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, bool bAntialias, float Thickness)
{
	if (Points.Num() < 2 || IsHidden(ElementList, InTint))
	{
		return;
	}
	FSlateLinesPayload Line;
	Line.FirstPoint = ElementList.Points.Num();
	Line.NumPoints = Points.Num();
	Line.Thickness = Thickness;
	Line.bAntialias = bAntialias;
	ElementList.Points.Append(Points);
	const int32 Payload = ElementList.Lines.Add(Line);
	Add(ElementList, EElementType::Lines, InLayer, PaintGeometry, InDrawEffects, InTint, Payload);
}

FSlateWindowElementList::FSlateWindowElementList(SWindow* InPaintWindow)
{
	ResetElementList(InPaintWindow);
}

void FSlateWindowElementList::PushClip(const FSlateClippingZone& InClipZone)
{
	const FSlateRect& Zone = InClipZone.GetBoundingBox();
	const FSlateRect Clip = InClipZone.GetShouldIntersectParent() ? GetCurrentClip().IntersectionWith(Zone) : Zone;
	ClipStack.Add(Clips.Add(Clip));
}

void FSlateWindowElementList::PopClip()
{
	checkf(ClipStack.Num() > 1, TEXT("PopClip without a PushClip"));
	ClipStack.Pop();
}

int32 FSlateWindowElementList::FindOrAddFont(const FSlateFontInfo& Font)
{
	// A window uses a handful of fonts, the last one most likely again.
	for (int32 Index = Fonts.Num() - 1; Index >= 0; --Index)
	{
		if (Fonts[Index].IsIdenticalTo(Font))
		{
			return Index;
		}
	}
	return Fonts.Add(Font);
}

void FSlateWindowElementList::ResetElementList(SWindow* InPaintWindow)
{
	PaintWindow = InPaintWindow;
	Elements.Reset();
	Damage.Reset();
	RenderTransforms.Reset();
	Brushes.Reset();
	Texts.Reset();
	Characters.Reset();
	Fonts.Reset();
	ShapedTexts.Reset();
	Lines.Reset();
	Points.Reset();
	Clips.Reset();
	ClipStack.Reset();

	constexpr float Far = 1.0e9f;
	ClipStack.Add(Clips.Add(FSlateRect(-Far, -Far, Far, Far)));
}

FSlateWindowElementList& FSlateDrawBuffer::AddWindowElementList(SWindow* ForWindow)
{
	if (NumWindows == WindowElementLists.Num())
	{
		WindowElementLists.Add(MakeUnique<FSlateWindowElementList>(ForWindow));
	}
	FSlateWindowElementList& List = *WindowElementLists[NumWindows++];
	List.ResetElementList(ForWindow);
	return List;
}
