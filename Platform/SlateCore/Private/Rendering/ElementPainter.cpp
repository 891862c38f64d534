#include "Rendering/ElementPainter.h"

#include "Fonts/FontFace.h"
#include "Math/NumericNarrowing.h"
#include "Rendering/DrawElements.h"
#include "Rendering/PixelBlend.h"
#include "Rendering/PixelBuffer.h"
#include "Rendering/SlateRenderer.h"

#include <algorithm>
#include <cairo.h>

namespace
{

/** How much of its colour an element keeps within a disabled widget. */
constexpr float DisabledOpacity = 0.45f;

/** Coordinates beyond this lie outside of any window; bounding them keeps sums within 32 bits. */
constexpr double Far = 1.0e6;

/** A row of text may begin far to the left of a window and reach into it. Whole pixels as floats are exact up to here. */
constexpr double FarText = 16777216.0;

/** Rounds to the nearest; moved into the positive numbers, where cutting off is rounding down. */
int32 ToPixel(double Coordinate, double Bound = Far)
{
	return NarrowNumber<int32>(FMath::Clamp(Coordinate, -Bound, Bound) + (Bound + 0.5)) - int32(Bound);
}

/** Whole pixels: both sides are rounded, so that boxes which touch still do. */
FIntRect ToPixels(const FSlateRect& Rect)
{
	return FIntRect(ToPixel(Rect.Left), ToPixel(Rect.Top), ToPixel(Rect.Right), ToPixel(Rect.Bottom));
}

FIntRect GetBox(const FSlateDrawElement& Element)
{
	return ToPixels(FSlateRect(Element.GetX(), Element.GetY(), Element.GetX() + Element.GetWidth() * Element.GetScale(),
		Element.GetY() + Element.GetHeight() * Element.GetScale()));
}

FPixelColor GetColor(const FSlateDrawElement& Element, const FLinearColor& Color)
{
	const bool bDisabled = EnumHasAnyFlags(Element.GetDrawEffects(), ESlateDrawEffect::DisabledEffect);
	return FPixelColor(bDisabled ? Color.CopyWithNewOpacity(Color.A * DisabledOpacity) : Color);
}

/** From the element's pixels, as they would be without its render transform, to the window's. */
cairo_matrix_t GetMatrix(const FSlateWindowElementList& List, const FSlateDrawElement& Element)
{
	const FSlateRenderTransform& Transform = List.GetRenderTransforms()[Element.GetRenderTransform()];
	float M00 = 1.0f;
	float M01 = 0.0f;
	float M10 = 0.0f;
	float M11 = 1.0f;
	Transform.GetMatrix().GetMatrix(M00, M01, M10, M11);
	const double Units = Element.GetScale() > 0.0f ? 1.0 / double(Element.GetScale()) : 1.0;
	cairo_matrix_t Matrix;
	cairo_matrix_init(
		&Matrix, M00 * Units, M01 * Units, M10 * Units, M11 * Units, Transform.GetTranslation().X, Transform.GetTranslation().Y);
	return Matrix;
}

FIntRect TransformBounds(const cairo_matrix_t& Matrix, const FIntRect& Rect)
{
	double X0 = Far;
	double Y0 = Far;
	double X1 = -Far;
	double Y1 = -Far;
	for (int32 Corner = 0; Corner < 4; ++Corner)
	{
		double X = (Corner & 1) != 0 ? Rect.Max.X : Rect.Min.X;
		double Y = (Corner & 2) != 0 ? Rect.Max.Y : Rect.Min.Y;
		cairo_matrix_transform_point(&Matrix, &X, &Y);
		X0 = FMath::Min(X0, X);
		Y0 = FMath::Min(Y0, Y);
		X1 = FMath::Max(X1, X);
		Y1 = FMath::Max(Y1, Y);
	}
	// A pixel more for smoothed edges.
	return FIntRect(ToPixel(X0) - 1, ToPixel(Y0) - 1, ToPixel(X1) + 1, ToPixel(Y1) + 1);
}

FIntRect GetBoundsOfLines(const FSlateWindowElementList& List, const FSlateDrawElement& Element)
{
	const FSlateLinesPayload& Line = List.GetLines()[Element.GetPayload()];
	FSlateRect Bounds(float(Far), float(Far), -float(Far), -float(Far));
	for (int32 Index = Line.FirstPoint; Index < Line.FirstPoint + Line.NumPoints; ++Index)
	{
		const FVector2D Point = List.GetPoints()[Index] * double(Element.GetScale());
		Bounds = Bounds.Expand(FSlateRect(Point, Point));
	}
	const float Reach = Line.Thickness * Element.GetScale() + 1.0f;
	return ToPixels(Bounds.ExtendBy(FMargin(Reach)));
}

/** What a brush without a picture fills. */
bool IsPlainFill(const FSlateBrush& Brush)
{
	return Brush.GetDrawType() != ESlateBrushDrawType::RoundedBox && Brush.GetDrawType() != ESlateBrushDrawType::Border &&
		Brush.GetResourceName().IsNone();
}

void FillFrame(FPixelBuffer& Target, const FIntRect& Clip, const FIntRect& Box, const FMargin& Sides, uint32 Color)
{
	const FIntRect Hole(FMath::Min(Box.Min.X + ToPixel(Sides.Left), Box.Max.X),
		FMath::Min(Box.Min.Y + ToPixel(Sides.Top), Box.Max.Y), FMath::Max(Box.Max.X - ToPixel(Sides.Right), Box.Min.X),
		FMath::Max(Box.Max.Y - ToPixel(Sides.Bottom), Box.Min.Y));
	PixelBlend::FillRect(Target, Clip, FIntRect(Box.Min.X, Box.Min.Y, Box.Max.X, Hole.Min.Y), Color);
	PixelBlend::FillRect(Target, Clip, FIntRect(Box.Min.X, Hole.Min.Y, Hole.Min.X, Hole.Max.Y), Color);
	PixelBlend::FillRect(Target, Clip, FIntRect(Hole.Max.X, Hole.Min.Y, Box.Max.X, Hole.Max.Y), Color);
	PixelBlend::FillRect(Target, Clip, FIntRect(Box.Min.X, Hole.Max.Y, Box.Max.X, Box.Max.Y), Color);
}

/** The glyphs of a text whose pen starts Pen pixels to the right of Origin on the baseline. */
void PaintGlyphs(const FShapedGlyphSequence& Text, const FIntPoint& Origin, float Pen, int32 OutlineWidth, FPixelColor Color,
	FPixelBuffer& Target, const FIntRect& Clip)
{
	for (const FShapedGlyphEntry& Glyph : Text.GetGlyphs())
	{
		constexpr int32 NumSubPositions = FSlateFontFace::NumSubPositions;
		const int32 Quarters = FMath::FloorToInt((Pen + Glyph.XOffset) * NumSubPositions + 0.5f);
		const FIntPoint Position(Origin.X + (Quarters >> 2), Origin.Y + FMath::RoundToInt(Glyph.YOffset));
		if (Position.X > Clip.Max.X + Text.GetMaxTextHeight())
		{
			break;
		}
		if (Glyph.bIsMissing)
		{
			const FIntPoint Size(FMath::RoundToInt(Glyph.XAdvance), Text.GetMaxTextHeight() * 2 / 3);
			const FIntRect Frame(Position.X + 1, Position.Y - Size.Y, Position.X + Size.X - 1, Position.Y);
			FillFrame(Target, Clip, Frame, FMargin(1.0f), Color.Premultiplied());
		}
		else if (float(Position.X) + Glyph.XAdvance + float(Text.GetMaxTextHeight()) > float(Clip.Min.X))
		{
			FSlateFontFace& Face = *Text.GetFaces()[Glyph.FaceIndex];
			PixelBlend::DrawGlyph(
				Target, Clip, Position, Face.GetGlyph(Glyph.GlyphIndex, Quarters & (NumSubPositions - 1), OutlineWidth), Color);
		}
		Pen += Glyph.XAdvance;
	}
}

/** A Cairo context on a buffer, cut at a rectangle. */
class FClippedCairo
{
public:
	FClippedCairo(FPixelBuffer& Target, const FIntRect& Clip)
		: Cairo(cairo_create(Target.GetSurface()))
	{
		cairo_rectangle(Cairo, Clip.Min.X, Clip.Min.Y, Clip.Width(), Clip.Height());
		cairo_clip(Cairo);
	}
	FClippedCairo(const FClippedCairo&) = delete;
	FClippedCairo& operator=(const FClippedCairo&) = delete;
	~FClippedCairo()
	{
		cairo_surface_flush(cairo_get_target(Cairo));
		cairo_destroy(Cairo);
	}

	operator cairo_t*() const { return Cairo; }

private:
	cairo_t* Cairo;
};

}

FSlateElementPainter::FSlateElementPainter(const TSharedRef<FSlateFontCache>& InFontCache)
	: FontCache(InFontCache)
{
}

void FSlateElementPainter::Paint(
	const FSlateWindowElementList& List, FPixelBuffer& Target, const TArray<FIntRect>& Damage, FSlateRenderStatistics& Statistics)
{
	FIntRect Concerned = Damage[0];
	for (const FIntRect& Part : Damage)
	{
		Concerned = FIntRect(Concerned.Min.ComponentMin(Part.Min), Concerned.Max.ComponentMax(Part.Max));
	}
	Place(List, Concerned);
	for (const FIntRect& Part : Damage)
	{
		PaintPart(List, Target, Part);
		++Statistics.RectanglesDamaged;
		Statistics.PixelsDamaged += Part.Area();
	}
	for (const FPlacedElement& Element : Placed)
	{
		Statistics.ElementsPainted += Element.bPainted ? 1 : 0;
	}
	Placed.Reset();
}

void FSlateElementPainter::Place(const FSlateWindowElementList& List, const FIntRect& Concerned)
{
	const TArray<FSlateDrawElement>& Elements = List.GetElements();
	Order.Reset();
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		Order.Add(uint64(Elements[Index].GetLayer()) << 32 | uint32(Index));
	}
	if (!std::is_sorted(Order.begin(), Order.end()))
	{
		std::sort(Order.begin(), Order.end());
	}

	Placed.Reset();
	for (const uint64 Entry : Order)
	{
		const FSlateDrawElement& Element = Elements[int32(uint32(Entry))];
		FPlacedElement Candidate;
		Candidate.Seen = ToPixels(List.GetClips()[Element.GetClippingIndex()]);
		Candidate.Seen.Clip(Concerned);
		if (!Candidate.Seen.IsEmpty() && PlaceElement(List, Element, Candidate))
		{
			Placed.Add(MoveTemp(Candidate));
		}
	}
}

bool FSlateElementPainter::PlaceElement(
	const FSlateWindowElementList& List, const FSlateDrawElement& Element, FPlacedElement& Out)
{
	Out.Element = &Element;
	Out.Color = GetColor(Element, Element.GetTint());
	Out.bIsOpaqueFill = false;
	Out.bPainted = false;
	Out.Box = GetBox(Element);
	FIntRect Bounds = Out.Box;
	switch (Element.GetElementType())
	{
		case FSlateDrawElement::EElementType::Box:
			Out.bIsOpaqueFill = Out.Color.GetAlpha() == 255 && Element.GetRenderTransform() == INDEX_NONE &&
				IsPlainFill(List.GetBrushes()[Element.GetPayload()]);
			break;
		case FSlateDrawElement::EElementType::Text:
		case FSlateDrawElement::EElementType::ShapedText:
		{
			Out.Text = GetText(List, Element);
			const int32 Height = Out.Text->GetMaxTextHeight();
			Out.Box.Min.X = ToPixel(Element.GetX(), FarText);
			Out.Box.Max = Out.Box.Min + FIntPoint(FMath::CeilToInt(Out.Text->GetMeasuredWidth()), Height);
			// Accents, slanted letters and fallback fonts reach beyond the line.
			const int32 Reach = Height + Out.Text->GetOutlineWidth();
			Bounds = FIntRect(Out.Box.Min - FIntPoint(Reach, Reach), Out.Box.Max + FIntPoint(Reach, Reach));
			break;
		}
		case FSlateDrawElement::EElementType::Lines:
		{
			const FIntRect OfLines = GetBoundsOfLines(List, Element);
			const FIntPoint Origin = Element.GetRenderTransform() == INDEX_NONE ? Out.Box.Min : FIntPoint(0, 0);
			Out.Box = FIntRect(OfLines.Min + Origin, OfLines.Max + Origin);
			Bounds = FIntRect(Out.Box.Min - FIntPoint(1, 1), Out.Box.Max + FIntPoint(1, 1));
			break;
		}
	}
	if (Element.GetRenderTransform() != INDEX_NONE)
	{
		const bool bLines = Element.GetElementType() == FSlateDrawElement::EElementType::Lines;
		const FIntPoint Origin = bLines ? FIntPoint(0, 0) : Out.Box.Min;
		Bounds = TransformBounds(GetMatrix(List, Element), FIntRect(Bounds.Min - Origin, Bounds.Max - Origin));
	}
	Out.Seen.Clip(Bounds);
	return !Out.Seen.IsEmpty();
}

FShapedGlyphSequencePtr FSlateElementPainter::GetText(const FSlateWindowElementList& List, const FSlateDrawElement& Element)
{
	if (Element.GetElementType() == FSlateDrawElement::EElementType::ShapedText)
	{
		return List.GetShapedTexts()[Element.GetPayload()];
	}
	const FSlateTextPayload& Text = List.GetTexts()[Element.GetPayload()];
	return FontCache->ShapeBidirectionalText(List.GetCharacters().GetData(), Text.FirstCharacter, Text.NumCharacters,
		List.GetFonts()[Text.FontIndex], Element.GetScale());
}

void FSlateElementPainter::PaintPart(const FSlateWindowElementList& List, FPixelBuffer& Target, const FIntRect& Part)
{
	// Whatever lies below the topmost fill that covers the whole part cannot be seen.
	int32 First = Placed.Num() - 1;
	const auto Covers = [&Part](const FPlacedElement& Candidate)
	{
		FIntRect Common = Candidate.Seen;
		Common.Clip(Part);
		return Candidate.bIsOpaqueFill && Common == Part;
	};
	while (First >= 0 && !Covers(Placed[First]))
	{
		--First;
	}
	if (First < 0)
	{
		PixelBlend::FillRect(Target, Part, Part, 0xFF000000);
		First = 0;
	}

	for (int32 Index = First; Index < Placed.Num(); ++Index)
	{
		FPlacedElement& Candidate = Placed[Index];
		FIntRect Clip = Candidate.Seen;
		Clip.Clip(Part);
		if (Clip.IsEmpty())
		{
			continue;
		}
		Candidate.bPainted = true;
		if (Candidate.Element->GetElementType() == FSlateDrawElement::EElementType::Lines)
		{
			PaintLines(List, Candidate, Target, Clip);
		}
		else if (Candidate.Element->GetRenderTransform() != INDEX_NONE)
		{
			PaintTransformed(List, Candidate, Target, Clip);
		}
		else
		{
			PaintElement(List, Candidate, Target, Candidate.Box, Clip);
		}
	}
}

void FSlateElementPainter::PaintElement(const FSlateWindowElementList& List, const FPlacedElement& Element, FPixelBuffer& Target,
	const FIntRect& Box, const FIntRect& Clip)
{
	if (Element.Text)
	{
		PaintText(Element, Target, Box, Clip);
		return;
	}
	const FSlateBrush& Brush = List.GetBrushes()[Element.Element->GetPayload()];
	if (Brush.GetDrawType() == ESlateBrushDrawType::RoundedBox)
	{
		PaintRoundedBox(Brush, Element, Target, Box, Clip);
		return;
	}
	PaintBox(Brush, Element, Target, Box, Clip);
}

void FSlateElementPainter::PaintTransformed(
	const FSlateWindowElementList& List, const FPlacedElement& Element, FPixelBuffer& Target, const FIntRect& Clip)
{
	// Painted straight first, then laid down turned. Larger than a screen nothing can be seen whole.
	constexpr int32 MaxSide = 4096;
	const FIntPoint Size = Element.Box.Size().ComponentMin(FIntPoint(MaxSide, MaxSide));
	FPixelBuffer Straight(Size);
	PaintElement(List, Element, Straight, FIntRect(FIntPoint(0, 0), Element.Box.Size()), Straight.GetRect());

	const FClippedCairo Cairo(Target, Clip);
	const cairo_matrix_t Matrix = GetMatrix(List, *Element.Element);
	cairo_transform(Cairo, &Matrix);
	cairo_set_source_surface(Cairo, Straight.GetSurface(), 0.0, 0.0);
	cairo_paint(Cairo);
}

void FSlateElementPainter::PaintBox(
	const FSlateBrush& Brush, const FPlacedElement& Element, FPixelBuffer& Target, const FIntRect& Box, const FIntRect& Clip)
{
	if (IsPlainFill(Brush))
	{
		PixelBlend::FillRect(Target, Clip, Box, Element.Color.Premultiplied());
		return;
	}

	const float Scale = Element.Element->GetScale();
	if (Brush.GetResourceName().IsNone())
	{
		const FMargin& Margin = Brush.GetMargin();
		const FVector2D Image = Brush.GetImageSize() * double(Scale);
		const FMargin Sides(Margin.Left * float(Image.X), Margin.Top * float(Image.Y), Margin.Right * float(Image.X),
			Margin.Bottom * float(Image.Y));
		FillFrame(Target, Clip, Box, Sides, Element.Color.Premultiplied());
		return;
	}

	FIntRect Seen(Clip.Min - Box.Min, Clip.Max - Box.Min);
	Seen.Clip(FIntRect(FIntPoint(0, 0), Box.Size()));
	if (!Seen.IsEmpty())
	{
		FIntPoint Position;
		const FPixelBuffer& Picture = BrushPictures.Get(Brush, Box.Size(), Element.Color, Scale, Seen, Position);
		PixelBlend::DrawImage(Target, Clip, Box.Min + Position, Picture);
	}
}

void FSlateElementPainter::PaintRoundedBox(
	const FSlateBrush& Brush, const FPlacedElement& Element, FPixelBuffer& Target, const FIntRect& Box, const FIntRect& Clip)
{
	if (Box.IsEmpty())
	{
		return;
	}
	const FSlateBrushOutlineSettings& Settings = Brush.OutlineSettings;
	const float Scale = Element.Element->GetScale();
	const float MaxRadius = float(FMath::Min(Box.Width(), Box.Height())) * 0.5f;

	FRoundedBoxShape Shape;
	Shape.Size = Box.Size();
	Shape.Fill = Element.Color;
	if (Settings.Width > 0.0f)
	{
		const int32 MaxWidth = FMath::CeilToInt(MaxRadius);
		Shape.OutlineWidth = FMath::Clamp(ToPixel(double(Settings.Width) * double(Scale)), 1, MaxWidth);
		Shape.Outline = GetColor(*Element.Element, Settings.Color.GetSpecifiedColor());
	}
	const double Radii[4] = {Settings.CornerRadii.X, Settings.CornerRadii.Y, Settings.CornerRadii.Z, Settings.CornerRadii.W};
	for (int32 Corner = 0; Corner < 4; ++Corner)
	{
		const bool bHalfCircle = Settings.RoundingType == ESlateBrushRoundingType::HalfHeightRadius;
		Shape.Radii[Corner] = bHalfCircle ? MaxRadius : FMath::Clamp(float(Radii[Corner]) * Scale, 0.0f, MaxRadius);
	}

	FIntPoint Middle;
	const FPixelBuffer& Picture = RoundedBoxes.Get(Shape, Middle);
	PixelBlend::DrawNineParts(Target, Clip, Box, Picture, Middle);
}

void FSlateElementPainter::PaintText(
	const FPlacedElement& Element, FPixelBuffer& Target, const FIntRect& Box, const FIntRect& Clip)
{
	const FShapedGlyphSequence& Text = *Element.Text;
	const int32 Baseline = Box.Min.Y + Text.GetMaxTextHeight() + Text.GetTextBaseline();
	const double Reach = Text.GetMaxTextHeight() + Text.GetOutlineWidth();
	const auto PaintAll = [&](int32 OutlineWidth, FPixelColor Color)
	{
		Text.ForEachPart(Clip.Min.X - Box.Min.X - Reach, Clip.Max.X - Box.Min.X + Reach,
			[&](const FShapedGlyphSequence& Part, double Left)
			{
				const int32 WholePixels = FMath::FloorToInt(Left);
				PaintGlyphs(Part, FIntPoint(Box.Min.X + WholePixels, Baseline), float(Left - WholePixels), OutlineWidth, Color,
					Target, Clip);
			});
	};

	if (Text.GetOutlineWidth() > 0)
	{
		PaintAll(Text.GetOutlineWidth(), GetColor(*Element.Element, Text.GetOutlineColor()));
	}
	PaintAll(0, Element.Color);
}

void FSlateElementPainter::PaintLines(
	const FSlateWindowElementList& List, const FPlacedElement& Element, FPixelBuffer& Target, const FIntRect& Clip)
{
	const FSlateDrawElement& Draw = *Element.Element;
	const FSlateLinesPayload& Line = List.GetLines()[Draw.GetPayload()];
	const FClippedCairo Cairo(Target, Clip);
	if (Draw.GetRenderTransform() != INDEX_NONE)
	{
		const cairo_matrix_t Matrix = GetMatrix(List, Draw);
		cairo_transform(Cairo, &Matrix);
	}
	else
	{
		cairo_translate(Cairo, Draw.GetX(), Draw.GetY());
	}
	const uint32 Bits = Element.Color.Bits;
	cairo_set_source_rgba(Cairo, double((Bits >> 16) & 255) / 255.0, double((Bits >> 8) & 255) / 255.0,
		double(Bits & 255) / 255.0, double(Bits >> 24) / 255.0);
	cairo_set_antialias(Cairo, Line.bAntialias ? CAIRO_ANTIALIAS_GRAY : CAIRO_ANTIALIAS_NONE);
	cairo_set_line_width(Cairo, double(Line.Thickness) * double(Draw.GetScale()));
	for (int32 Index = Line.FirstPoint; Index < Line.FirstPoint + Line.NumPoints; ++Index)
	{
		const FVector2D Point = List.GetPoints()[Index] * double(Draw.GetScale());
		cairo_line_to(Cairo, Point.X, Point.Y);
	}
	cairo_stroke(Cairo);
}
