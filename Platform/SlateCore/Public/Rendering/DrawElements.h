#pragma once

#include "CoreMinimal.h"
#include "Fonts/FontCache.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Clipping.h"
#include "Layout/PaintGeometry.h"
#include "Layout/SlateRect.h"
#include "Rendering/RenderingCommon.h"
#include "Rendering/SlateDamage.h"
#include "Styling/SlateBrush.h"

class FSlateWindowElementList;
class SWindow;

/**
 * One thing to paint, in window pixels. Elements of a higher layer lie above; within a layer the later lies above.
 *
 * An element that lies outside of the current clip, or is wholly transparent, is dropped at once.
 */
class SLATECORE_API FSlateDrawElement
{
public:
	enum class EElementType : uint8
	{
		Box,
		Text,
		ShapedText,
		Lines,
	};

	/** A brush over the whole geometry. The brush is read now and need not live on. */
	static void MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const FSlateBrush* InBrush, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/** One line of text from the top left of the geometry; it is not cut at the geometry's sides. */
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const FString& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const FText& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/** The characters [StartIndex, EndIndex) of a text. */
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const FString& InText, const int32 StartIndex, const int32 EndIndex, const FSlateFontInfo& InFontInfo,
		ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	/** A text that was shaped at the scale of the geometry. */
	static void MakeShapedText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const FShapedGlyphSequenceRef& InShapedGlyphSequence, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/**
	 * A line through points.
	 *
	 * @param Points     At least two, relative to the geometry, in its units.
	 * @param Thickness  Slate units.
	 */
	static void MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const TArray<FVector2D>& Points, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White, bool bAntialias = true, float Thickness = 1.0f);

	EElementType GetElementType() const { return Type; }
	uint32 GetLayer() const { return Layer; }
	ESlateDrawEffect GetDrawEffects() const { return Effects; }
	const FLinearColor& GetTint() const { return Tint; }

	/** Top left in window pixels, size in the element's own units, and pixels per unit. */
	float GetX() const { return X; }
	float GetY() const { return Y; }
	float GetWidth() const { return Width; }
	float GetHeight() const { return Height; }
	float GetScale() const { return Scale; }

	/** Index into the list's clips. */
	int32 GetClippingIndex() const { return ClippingIndex; }
	/** Index into the list's array of what this type of element needs more. */
	int32 GetPayload() const { return Payload; }
	/** Index into the list's render transforms, or INDEX_NONE when scale and position say it all. */
	int32 GetRenderTransform() const { return RenderTransform; }

private:
	static bool IsHidden(const FSlateWindowElementList& ElementList, const FLinearColor& InTint);
	static FSlateDrawElement& Add(FSlateWindowElementList& ElementList, EElementType Type, uint32 InLayer,
		const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, int32 Payload);

	float X;
	float Y;
	float Width;
	float Height;
	float Scale;
	FLinearColor Tint;
	uint32 Layer;
	int32 ClippingIndex;
	int32 Payload;
	int32 RenderTransform;
	EElementType Type;
	ESlateDrawEffect Effects;
};

/** Text of a draw element: a range of the list's characters, in one of its fonts. */
struct FSlateTextPayload
{
	int32 FirstCharacter;
	int32 NumCharacters;
	int32 FontIndex;
};

/** A line of a draw element: a range of the list's points. */
struct FSlateLinesPayload
{
	int32 FirstPoint;
	int32 NumPoints;
	float Thickness;
	bool bAntialias;
};

/**
 * What is to be painted in one window in one frame, and which parts of the window it concerns. All coordinates are pixels
 * from the window's top left. The memory of the arrays is kept from frame to frame.
 */
class SLATECORE_API FSlateWindowElementList
{
public:
	explicit FSlateWindowElementList(SWindow* InPaintWindow);

	SWindow* GetPaintWindow() const { return PaintWindow; }

	/** Elements made from now on are cut at the zone, until PopClip. */
	void PushClip(const FSlateClippingZone& InClipZone);
	void PopClip();

	/** The clip of the elements made now. Before the first PushClip it is the whole plane. */
	const FSlateRect& GetCurrentClip() const { return Clips[ClipStack.Last()]; }

	/** A part of the window that is to be painted anew. Only there are pixels touched. */
	void AddDamage(const FSlateRect& Rect) { Damage.Add(Rect); }
	const TArray<FSlateRect>& GetDamage() const { return Damage.GetRects(); }

	const TArray<FSlateDrawElement>& GetElements() const { return Elements; }
	const TArray<FSlateRect>& GetClips() const { return Clips; }
	const TArray<FSlateRenderTransform>& GetRenderTransforms() const { return RenderTransforms; }
	const TArray<FSlateBrush>& GetBrushes() const { return Brushes; }
	const TArray<FSlateTextPayload>& GetTexts() const { return Texts; }
	const TArray<TCHAR>& GetCharacters() const { return Characters; }
	const TArray<FSlateFontInfo>& GetFonts() const { return Fonts; }
	const TArray<FShapedGlyphSequenceRef>& GetShapedTexts() const { return ShapedTexts; }
	const TArray<FSlateLinesPayload>& GetLines() const { return Lines; }
	const TArray<FVector2D>& GetPoints() const { return Points; }

	/** Empties the list for the next frame, which may be of another window. */
	void ResetElementList(SWindow* InPaintWindow);

private:
	friend class FSlateDrawElement;

	int32 FindOrAddFont(const FSlateFontInfo& Font);

	SWindow* PaintWindow;
	TArray<FSlateDrawElement> Elements;
	TArray<FSlateRect> Clips;
	TArray<int32> ClipStack;
	FSlateDamage Damage;
	TArray<FSlateRenderTransform> RenderTransforms;
	TArray<FSlateBrush> Brushes;
	TArray<FSlateTextPayload> Texts;
	TArray<TCHAR> Characters;
	TArray<FSlateFontInfo> Fonts;
	TArray<FShapedGlyphSequenceRef> ShapedTexts;
	TArray<FSlateLinesPayload> Lines;
	TArray<FVector2D> Points;
};

/** The element lists of all windows of a frame. */
class SLATECORE_API FSlateDrawBuffer
{
public:
	/** An empty list for a window of this frame. It stays valid until ClearBuffer. */
	FSlateWindowElementList& AddWindowElementList(SWindow* ForWindow);

	/** How many windows the frame has so far, and the list of one of them. */
	int32 GetNumWindows() const { return NumWindows; }
	const FSlateWindowElementList& GetWindowElementList(int32 Index) const { return *WindowElementLists[Index]; }

	void ClearBuffer() { NumWindows = 0; }

private:
	TArray<TUniquePtr<FSlateWindowElementList>> WindowElementLists;
	int32 NumWindows = 0;
};
