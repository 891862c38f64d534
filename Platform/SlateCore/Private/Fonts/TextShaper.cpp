#include "Fonts/TextShaper.h"

#include "Fonts/FontFace.h"
#include "Fonts/FontSystem.h"
#include "Fonts/SizedFont.h"

#include <algorithm>

namespace
{

struct FCharacterRange
{
	uint32 First;
	uint32 Last;
	PangoScript Script;
};

/** Characters that stand side by side from left to right and never combine. Common ones go with any script. */
const FCharacterRange GSimpleRanges[] = {
	{0x0000, 0x0040, PANGO_SCRIPT_COMMON},
	{0x0041, 0x005A, PANGO_SCRIPT_LATIN},
	{0x005B, 0x0060, PANGO_SCRIPT_COMMON},
	{0x0061, 0x007A, PANGO_SCRIPT_LATIN},
	{0x007B, 0x00AC, PANGO_SCRIPT_COMMON},
	{0x00AE, 0x00BF, PANGO_SCRIPT_COMMON},
	{0x00C0, 0x00D6, PANGO_SCRIPT_LATIN},
	{0x00D7, 0x00D7, PANGO_SCRIPT_COMMON},
	{0x00D8, 0x00F6, PANGO_SCRIPT_LATIN},
	{0x00F7, 0x00F7, PANGO_SCRIPT_COMMON},
	{0x00F8, 0x024F, PANGO_SCRIPT_LATIN},
	{0x0370, 0x03FF, PANGO_SCRIPT_GREEK},
	{0x0400, 0x0482, PANGO_SCRIPT_CYRILLIC},
	{0x048A, 0x052F, PANGO_SCRIPT_CYRILLIC},
	{0x2010, 0x2027, PANGO_SCRIPT_COMMON},
	{0x2030, 0x205E, PANGO_SCRIPT_COMMON},
	{0x20A0, 0x20BF, PANGO_SCRIPT_COMMON},
};

/** PANGO_SCRIPT_UNKNOWN for a character that is not simple. */
PangoScript GetSimpleScript(uint32 Character)
{
	for (const FCharacterRange& Range : GSimpleRanges)
	{
		if (Character <= Range.Last)
		{
			return Character >= Range.First ? Range.Script : PANGO_SCRIPT_UNKNOWN;
		}
	}
	return PANGO_SCRIPT_UNKNOWN;
}

bool IsControl(uint32 Character)
{
	return Character < 0x20 || (Character >= 0x7F && Character < 0xA0) || Character == 0x2028 || Character == 0x2029;
}

/** The code point at an index, which is moved behind it. Half of a surrogate pair alone gives the replacement character. */
uint32 TakeCodePoint(const TCHAR* Text, int32 Length, int32& Index)
{
	const uint32 First = Text[Index++];
	if ((First & 0xF800) != 0xD800)
	{
		return First;
	}
	const bool bPair = First < 0xDC00 && Index < Length && (Text[Index] & 0xFC00) == 0xDC00;
	return bPair ? 0x10000 + ((First & 0x3FF) << 10) + (uint32(Text[Index++]) & 0x3FF) : 0xFFFD;
}

void AppendUtf8(TArray<ANSICHAR>& Out, uint32 CodePoint)
{
	if (CodePoint < 0x80)
	{
		Out.Add(ANSICHAR(CodePoint));
		return;
	}
	ANSICHAR Bytes[6];
	Out.Append(Bytes, g_unichar_to_utf8(CodePoint, Bytes));
}

}

FSlateTextShaper::FSlateTextShaper(FSlateFontSystem& InFontSystem)
	: FontSystem(InFontSystem)
	, SimpleGlyphs(pango_glyph_string_new())
{
}

FSlateTextShaper::~FSlateTextShaper()
{
	pango_glyph_string_free(SimpleGlyphs);
}

bool FSlateTextShaper::IsSimple(TCHAR Character)
{
	return GetSimpleScript(Character) != PANGO_SCRIPT_UNKNOWN;
}

void FSlateTextShaper::Begin(const TCHAR* Text, int32 Length)
{
	++NumShapedTexts;
	NumShapedCharacters += Length;
	Source = Text;
	Utf8.Reset();
	CharacterOfByte.Reset();
	Glyphs.Reset();
	Faces.Reset();
	Runs.Reset();
	ClusterWidths.Reset();
	for (int32 Index = 0; Index < Length; ++Index)
	{
		ClusterWidths.Add(-1.0f);
	}
}

FShapedGlyphSequenceRef FSlateTextShaper::End(int32 Length, const FSlateSizedFont& Font) const
{
	return MakeShared<FShapedGlyphSequence>(FString(Length, Source), TArray<FShapedGlyphEntry>(Glyphs),
		TArray<TSharedRef<FSlateFontFace>>(Faces), MakeOffsets(Length), TArray<FShapedTextRun>(Runs), Font);
}

FShapedGlyphSequenceRef FSlateTextShaper::Shape(const TCHAR* Text, int32 Length, const FSlateSizedFont& Font)
{
	Begin(Text, Length);
	const bool bSimple = Encode(Text, Length);
	if (Length > 0 && !(bSimple && ShapeSimpleText(Font)))
	{
		ShapeAnyText(Font);
	}
	return End(Length, Font);
}

FShapedGlyphSequenceRef FSlateTextShaper::ShapePiece(
	const TCHAR* Text, int32 First, int32 Length, uint8 Level, const FSlateSizedFont& Font)
{
	Begin(Text + First, Length);
	// A mark without a letter before would get a dotted circle to sit on.
	const bool bWithinCluster = First > 0 && !IsSimple(Text[First]);
	const int32 NumBefore = bWithinCluster ? FMath::Min(First, 2) : 0;
	Encode(Text + First - NumBefore, NumBefore);
	const int32 FirstByte = Utf8.Num();
	CharacterOfByte.Reset();
	CharacterOfByte.AddZeroed(FirstByte);

	const bool bSimple = Encode(Text + First, Length) && Level == 0 && NumBefore == 0;
	if (!(bSimple && ShapeSimpleText(Font)))
	{
		ShapeAtLevel(FirstByte, Level, Font);
	}
	if ((Level & 1) != 0)
	{
		Runs.Add({0, Length, true});
	}
	return End(Length, Font);
}

bool FSlateTextShaper::Encode(const TCHAR* Text, int32 Length)
{
	Script = PANGO_SCRIPT_COMMON;
	bool bSimple = true;
	for (int32 Index = 0; Index < Length;)
	{
		const int32 First = Index;
		const uint32 CodePoint = TakeCodePoint(Text, Length, Index);
		const PangoScript ScriptOfCharacter = GetSimpleScript(CodePoint);
		if (ScriptOfCharacter != PANGO_SCRIPT_COMMON)
		{
			const bool bSameScript = Script == PANGO_SCRIPT_COMMON || Script == ScriptOfCharacter;
			bSimple = bSimple && bSameScript && ScriptOfCharacter != PANGO_SCRIPT_UNKNOWN;
			Script = ScriptOfCharacter;
		}
		AppendUtf8(Utf8, IsControl(CodePoint) ? ' ' : CodePoint);
		while (CharacterOfByte.Num() < Utf8.Num())
		{
			CharacterOfByte.Add(First);
		}
	}
	return bSimple;
}

bool FSlateTextShaper::ShapeSimpleText(const FSlateSizedFont& Font)
{
	PangoAnalysis Analysis = Font.GetAnalysis();
	Analysis.script = Script == PANGO_SCRIPT_COMMON ? PANGO_SCRIPT_LATIN : Script;
	pango_shape_full(Utf8.GetData(), Utf8.Num(), Utf8.GetData(), Utf8.Num(), &Analysis, SimpleGlyphs);
	for (int32 Index = 0; Index < SimpleGlyphs->num_glyphs; ++Index)
	{
		if ((SimpleGlyphs->glyphs[Index].glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0)
		{
			return false;
		}
	}
	AddRun(*SimpleGlyphs, 0, Font.GetFace().ToSharedRef());
	return true;
}

void FSlateTextShaper::ShapeAnyText(const FSlateSizedFont& Font)
{
	PangoLayout* Layout = pango_layout_new(FontSystem.GetContext());
	pango_layout_set_font_description(Layout, Font.GetDescription());
	pango_layout_set_text(Layout, Utf8.GetData(), Utf8.Num());
	const PangoLayoutLine* Line = pango_layout_get_line_readonly(Layout, 0);
	for (const GSList* Node = Line->runs; Node; Node = Node->next)
	{
		const PangoGlyphItem& Run = *static_cast<const PangoGlyphItem*>(Node->data);
		AddRun(*Run.glyphs, Run.item->offset, GetFace(Run.item->analysis.font, Font));
		const int32 First = CharacterOfByte[Run.item->offset];
		const int32 ByteBehind = Run.item->offset + Run.item->length;
		const int32 Behind = ByteBehind < CharacterOfByte.Num() ? CharacterOfByte[ByteBehind] : ClusterWidths.Num();
		// Odd levels of embedding run from right to left (Unicode Standard Annex 9).
		Runs.Add({First, Behind - First, (Run.item->analysis.level & 1) != 0});
	}
	if (!Runs.ContainsByPredicate([](const FShapedTextRun& Run) { return Run.bRightToLeft; }))
	{
		Runs.Reset();
	}
	g_object_unref(Layout);
}

void FSlateTextShaper::ShapeAtLevel(int32 FirstByte, uint8 Level, const FSlateSizedFont& Font)
{
	PangoAttrList* Attributes = pango_attr_list_new();
	pango_attr_list_insert(Attributes, pango_attr_font_desc_new(Font.GetDescription()));
	GList* Items =
		pango_itemize_with_base_dir(FontSystem.GetContext(), (Level & 1) != 0 ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR,
			Utf8.GetData(), FirstByte, Utf8.Num() - FirstByte, Attributes, nullptr);
	for (GList* Node = Items; Node; Node = Node->next)
	{
		// By itself the piece might have another one, as blanks have.
		static_cast<PangoItem*>(Node->data)->analysis.level = Level;
	}

	GList* FromLeft = pango_reorder_items(Items);
	for (GList* Node = FromLeft; Node; Node = Node->next)
	{
		const PangoItem& Item = *static_cast<const PangoItem*>(Node->data);
		pango_shape_full(Utf8.GetData() + Item.offset, Item.length, Utf8.GetData(), Utf8.Num(), &Item.analysis, SimpleGlyphs);
		AddRun(*SimpleGlyphs, Item.offset, GetFace(Item.analysis.font, Font));
	}
	g_list_free(FromLeft);
	g_list_free_full(Items, [](gpointer Item) { pango_item_free(static_cast<PangoItem*>(Item)); });
	pango_attr_list_unref(Attributes);
}

TArray<uint8> FSlateTextShaper::FindLevels(const TCHAR* Text, int32 Length)
{
	TArray<uint8> Levels;
	// No character before the first of the Hebrew block is written from right to left.
	if (!std::any_of(Text, Text + Length, [](TCHAR Character) { return Character >= 0x0590; }))
	{
		return Levels;
	}
	Utf8.Reset();
	Utf8.Reserve(Length * 2);
	for (int32 Index = 0; Index < Length;)
	{
		const uint32 CodePoint = TakeCodePoint(Text, Length, Index);
		AppendUtf8(Utf8, IsControl(CodePoint) ? ' ' : CodePoint);
	}
	PangoDirection Direction = PANGO_DIRECTION_NEUTRAL;
	guint8* LevelsOfCodePoints = pango_log2vis_get_embedding_levels(Utf8.GetData(), Utf8.Num(), &Direction);
	bool bAnyRightToLeft = false;
	const guint8* Level = LevelsOfCodePoints;
	Levels.Reserve(Length);
	for (int32 Index = 0; Index < Length; ++Level)
	{
		TakeCodePoint(Text, Length, Index);
		while (Levels.Num() < Index)
		{
			Levels.Add(*Level);
		}
		bAnyRightToLeft |= (*Level & 1) != 0;
	}
	g_free(LevelsOfCodePoints);
	return bAnyRightToLeft ? Levels : TArray<uint8>();
}

int32 FSlateTextShaper::FindLastClusterBreak(const TCHAR* Text, int32 Offset, int32 Length)
{
	// What comes behind decides, too; a few characters are enough.
	constexpr int32 NumBehind = 16;
	const int32 End = FMath::Min(Offset + NumBehind, Length);
	TArray<ANSICHAR> Window;
	TArray<int32> Indices;
	for (int32 Index = 0; Index < End;)
	{
		Indices.Add(Index);
		AppendUtf8(Window, TakeCodePoint(Text, End, Index));
	}
	TArray<PangoLogAttr> Attributes;
	Attributes.AddZeroed(Indices.Num() + 1);
	pango_default_break(Window.GetData(), Window.Num(), nullptr, Attributes.GetData(), Attributes.Num());
	int32 Last = 0;
	for (int32 Character = 0; Character < Indices.Num() && Indices[Character] <= Offset; ++Character)
	{
		Last = Attributes[Character].is_cursor_position ? Indices[Character] : Last;
	}
	return Last;
}

float FSlateTextShaper::GetAdvance(const PangoGlyphInfo& Glyph, TCHAR Character) const
{
	const float Width = float(Glyph.geometry.width) / PANGO_SCALE;
	if (Character == TEXT('\t'))
	{
		return Width * 4.0f;
	}
	return IsControl(Character) ? 0.0f : Width;
}

void FSlateTextShaper::AddRun(const PangoGlyphString& Run, int32 FirstByte, const TSharedRef<FSlateFontFace>& Face)
{
	const int32 FaceIndex = AddFace(Face);
	for (int32 Index = 0; Index < Run.num_glyphs; ++Index)
	{
		const PangoGlyphInfo& Glyph = Run.glyphs[Index];
		const int32 Character = CharacterOfByte[FirstByte + Run.log_clusters[Index]];
		const float Advance = GetAdvance(Glyph, Source[Character]);
		ClusterWidths[Character] = FMath::Max(ClusterWidths[Character], 0.0f) + Advance;

		FShapedGlyphEntry Entry;
		Entry.bIsMissing = (Glyph.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0;
		Entry.GlyphIndex = Glyph.glyph;
		Entry.FaceIndex = uint16(FaceIndex);
		Entry.XAdvance = Advance;
		Entry.XOffset = float(Glyph.geometry.x_offset) / PANGO_SCALE;
		Entry.YOffset = float(Glyph.geometry.y_offset) / PANGO_SCALE;
		Glyphs.Add(Entry);
	}
}

TSharedRef<FSlateFontFace> FSlateTextShaper::GetFace(PangoFont* Font, const FSlateSizedFont& SizedFont)
{
	if (!Font || Font == SizedFont.GetFace()->GetFont())
	{
		return SizedFont.GetFace().ToSharedRef();
	}
	if (const TSharedRef<FSlateFontFace>* Known = FallbackFaces.Find(Font))
	{
		return *Known;
	}
	return FallbackFaces.Add(Font, MakeShared<FSlateFontFace>(Font));
}

int32 FSlateTextShaper::AddFace(const TSharedRef<FSlateFontFace>& Face)
{
	for (int32 Index = 0; Index < Faces.Num(); ++Index)
	{
		if (Faces[Index] == Face)
		{
			return Index;
		}
	}
	return Faces.Add(Face);
}

TArray<float> FSlateTextShaper::MakeOffsets(int32 Length) const
{
	TArray<float> Offsets;
	Offsets.AddUninitialized(Length + 1);
	Offsets[0] = 0.0f;
	for (int32 First = 0; First < Length;)
	{
		int32 End = First + 1;
		while (End < Length && ClusterWidths[End] < 0.0f)
		{
			++End;
		}
		const float Width = FMath::Max(ClusterWidths[First], 0.0f);
		for (int32 Index = First + 1; Index <= End; ++Index)
		{
			Offsets[Index] = Offsets[First] + Width * float(Index - First) / float(End - First);
		}
		First = End;
	}
	return Offsets;
}
