#include "Widgets/Text/STextBlock.h"

#include "Framework/Text/FontTextMeasure.h"
#include "Framework/Text/TextBlockLayout.h"
#include "Framework/Text/TextDirection.h"
#include "Framework/Text/TextWrap.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

namespace
{
/** A value that replaces the style's while it is set. */
template <typename ValueType, EInvalidateWidgetReason Reason>
struct TOverride
{
	TOverride() = default;
	explicit TOverride(const ValueType& Default)
		: Value(Default)
	{
	}

	SlateAttributePrivate::TSlateAttributeBase<ValueType, Reason> Value;
	bool bIsSet = false;
};
}

struct STextBlock::FOverrides
{
	template <typename ValueType>
	using TLayout = TOverride<ValueType, EInvalidateWidgetReason::Layout>;
	template <typename ValueType>
	using TPaint = TOverride<ValueType, EInvalidateWidgetReason::Paint>;

	TLayout<FSlateFontInfo> Font;
	TPaint<FSlateColor> ColorAndOpacity;
	TLayout<FVector2D> ShadowOffset{FVector2D::ZeroVector};
	TPaint<FLinearColor> ShadowColorAndOpacity{FLinearColor::Transparent};
	TLayout<float> WrapTextAt{0.0f};
	TLayout<bool> AutoWrapText{false};
	TLayout<ETextWrappingPolicy> WrappingPolicy{ETextWrappingPolicy::DefaultWrapping};
	TLayout<FMargin> Margin;
	TLayout<float> LineHeightPercentage{1.0f};
	TPaint<ETextJustify::Type> Justification{ETextJustify::Left};
	TPaint<ETextOverflowPolicy> OverflowPolicy{ETextOverflowPolicy::Clip};
	TLayout<float> MinDesiredWidth{0.0f};
};

const STextBlock::FOverrides& STextBlock::GetDefaults()
{
	static const FOverrides Defaults;
	return Defaults;
}

template <typename ValueType, typename OverrideType>
void STextBlock::SetOverride(OverrideType FOverrides::*Member, const TAttribute<ValueType>& Value)
{
	if (!Overrides.IsValid())
	{
		if (!Value.IsSet())
		{
			return;
		}
		Overrides = MakeUnique<FOverrides>();
	}

	OverrideType& Override = (*Overrides).*Member;
	Override.Value.Assign(*this, Value, (GetDefaults().*Member).Value.Get());
	if (Override.bIsSet != Value.IsSet())
	{
		Override.bIsSet = Value.IsSet();
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

const STextBlock::FOverrides& STextBlock::GetOverrides() const
{
	return Overrides.IsValid() ? *Overrides : GetDefaults();
}

STextBlock::STextBlock()
{
	SetCanTick(false);
}

STextBlock::~STextBlock() = default;

void STextBlock::Construct(const FArguments& InArgs)
{
	TextStyle = InArgs._TextStyle;
	SetText(InArgs._Text);
	SetFont(InArgs._Font);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetShadowOffset(InArgs._ShadowOffset);
	SetShadowColorAndOpacity(InArgs._ShadowColorAndOpacity);
	SetWrapTextAt(InArgs._WrapTextAt);
	SetAutoWrapText(InArgs._AutoWrapText);
	SetWrappingPolicy(InArgs._WrappingPolicy);
	SetMargin(InArgs._Margin);
	SetLineHeightPercentage(InArgs._LineHeightPercentage);
	SetJustification(InArgs._Justification);
	SetMinDesiredWidth(InArgs._MinDesiredWidth);
	SetOverflowPolicy(InArgs._OverflowPolicy);
}

void STextBlock::SetText(TAttribute<FText> InText)
{
	SetAttribute(Text, InText);
}

void STextBlock::SetTextStyle(const FTextBlockStyle* InTextStyle)
{
	const FTextBlockStyle* const NewStyle = InTextStyle ? InTextStyle : FArguments()._TextStyle;
	if (TextStyle != NewStyle)
	{
		TextStyle = NewStyle;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void STextBlock::SetFont(TAttribute<FSlateFontInfo> InFont)
{
	SetOverride(&FOverrides::Font, InFont);
}

void STextBlock::SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity)
{
	SetOverride(&FOverrides::ColorAndOpacity, InColorAndOpacity);
}

void STextBlock::SetShadowOffset(TAttribute<FVector2D> InShadowOffset)
{
	SetOverride(&FOverrides::ShadowOffset, InShadowOffset);
}

void STextBlock::SetShadowColorAndOpacity(TAttribute<FLinearColor> InShadowColorAndOpacity)
{
	SetOverride(&FOverrides::ShadowColorAndOpacity, InShadowColorAndOpacity);
}

void STextBlock::SetWrapTextAt(TAttribute<float> InWrapTextAt)
{
	SetOverride(&FOverrides::WrapTextAt, InWrapTextAt);
}

void STextBlock::SetAutoWrapText(TAttribute<bool> InAutoWrapText)
{
	SetOverride(&FOverrides::AutoWrapText, InAutoWrapText);
}

void STextBlock::SetWrappingPolicy(TAttribute<ETextWrappingPolicy> InWrappingPolicy)
{
	SetOverride(&FOverrides::WrappingPolicy, InWrappingPolicy);
}

void STextBlock::SetMargin(TAttribute<FMargin> InMargin)
{
	SetOverride(&FOverrides::Margin, InMargin);
}

void STextBlock::SetLineHeightPercentage(TAttribute<float> InLineHeightPercentage)
{
	SetOverride(&FOverrides::LineHeightPercentage, InLineHeightPercentage);
}

void STextBlock::SetJustification(TAttribute<ETextJustify::Type> InJustification)
{
	SetOverride(&FOverrides::Justification, InJustification);
}

void STextBlock::SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth)
{
	SetOverride(&FOverrides::MinDesiredWidth, InMinDesiredWidth);
}

void STextBlock::SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy)
{
	SetOverride(&FOverrides::OverflowPolicy,
		InOverflowPolicy.IsSet() ? TAttribute<ETextOverflowPolicy>(InOverflowPolicy.GetValue())
								 : TAttribute<ETextOverflowPolicy>());
}

const FSlateFontInfo& STextBlock::GetFont() const
{
	const auto& Override = GetOverrides().Font;
	return Override.bIsSet ? Override.Value.Get() : TextStyle->Font;
}

const FSlateColor& STextBlock::GetColorAndOpacity() const
{
	const auto& Override = GetOverrides().ColorAndOpacity;
	return Override.bIsSet ? Override.Value.Get() : TextStyle->ColorAndOpacity;
}

const FVector2D& STextBlock::GetShadowOffset() const
{
	const auto& Override = GetOverrides().ShadowOffset;
	return Override.bIsSet ? Override.Value.Get() : TextStyle->ShadowOffset;
}

const FLinearColor& STextBlock::GetShadowColorAndOpacity() const
{
	const auto& Override = GetOverrides().ShadowColorAndOpacity;
	return Override.bIsSet ? Override.Value.Get() : TextStyle->ShadowColorAndOpacity;
}

bool STextBlock::NeedsLayout() const
{
	const FOverrides& Set = GetOverrides();
	const FString& String = Text.Get().ToString();
	int32 Index;
	return Set.AutoWrapText.Value.Get() || Set.WrapTextAt.Value.Get() > 0.0f || String.Len() > FTextRows::MaxLineLength ||
		String.FindChar(TEXT('\n'), Index) || String.FindChar(TEXT('\r'), Index);
}

FVector2D STextBlock::GetSpaceAroundText() const
{
	const FVector2D& Shadow = GetShadowOffset();
	return FVector2D(FMath::Abs(Shadow.X), FMath::Abs(Shadow.Y)) + GetOverrides().Margin.Value.Get().GetDesiredSize();
}

float STextBlock::GetWrapWidth(float Room) const
{
	const FOverrides& Set = GetOverrides();
	return CombineWrapWidths(Set.WrapTextAt.Value.Get(), Set.AutoWrapText.Value.Get() ? Room : 0.0f);
}

const FTextRows& STextBlock::UpdateRows(float Scale, float AllottedWidth) const
{
	const FOverrides& Set = GetOverrides();
	const float Room = AllottedWidth - GetSpaceAroundText().X;
	FTextRowFormat Format;
	Format.WrapWidth = GetWrapWidth(Room);
	Format.WrappingPolicy = Set.WrappingPolicy.Value.Get();
	Format.Justification = Set.Justification.Value.Get();
	Format.LineHeightPercentage = Set.LineHeightPercentage.Value.Get();

	if (!Layout.IsValid())
	{
		Layout = MakeUnique<FTextBlockLayout>();
	}
	Layout->Update(Text.Get().ToString(), GetFont(), Scale, Format, Room);
	return Layout->GetRows();
}

FVector2D STextBlock::GetSizeAt(float Scale, float AllottedWidth) const
{
	const FOverrides& Set = GetOverrides();
	FVector2D Size;
	if (NeedsLayout())
	{
		Size = UpdateRows(Scale, AllottedWidth).GetSize();
	}
	else
	{
		Layout.Reset();
		Size = MeasureSingleLine(Text.Get().ToString(), GetFont(), Scale);
		Size.Y *= Set.LineHeightPercentage.Value.Get();
	}
	Size += GetSpaceAroundText();
	return FVector2D(FMath::Max<double>(Size.X, Set.MinDesiredWidth.Value.Get()), Size.Y);
}

FVector2D STextBlock::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return GetSizeAt(LayoutScaleMultiplier, GetPaintSpaceGeometry().GetLocalSize().X);
}

void STextBlock::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	// Only now is the width known at which the text wraps, and with it the height it needs.
	if (GetOverrides().AutoWrapText.Value.Get() &&
		GetSizeAt(AllottedGeometry.Scale, AllottedGeometry.GetLocalSize().X) != GetDesiredSize())
	{
		const_cast<STextBlock*>(this)->Invalidate(EInvalidateWidgetReason::Layout);
	}
}

FString STextBlock::ShortenToRoom(const FGeometry& Geometry) const
{
	const FString& Line = Text.Get().ToString();
	const auto GetWidth = [&](const FString& Part)
	{
		return MeasureSingleLine(Part, GetFont(), Geometry.Scale).X;
	};
	const double Room = Geometry.GetLocalSize().X - GetSpaceAroundText().X;
	if (GetWidth(Line) <= Room)
	{
		return Line;
	}
	const auto Shorten = [&Line](int32 Length)
	{
		// The halves of a character beyond the basic plane stay together.
		const bool bSplits = Length > 0 && (Line[Length - 1] & 0xFC00) == 0xD800;
		return Line.Left(bSplits ? Length - 1 : Length) + TEXT("\u2026");
	};
	int32 Fitting = 0;
	int32 TooLong = Line.Len();
	while (TooLong - Fitting > 1)
	{
		const int32 Middle = (Fitting + TooLong) / 2;
		(GetWidth(Shorten(Middle)) <= Room ? Fitting : TooLong) = Middle;
	}
	return Shorten(Fitting);
}

float STextBlock::GetJustifiedLeft(const FString& Row, const FGeometry& Geometry) const
{
	const ETextJustify::Type Justification = TextDirection::OnScreen(GetOverrides().Justification.Value.Get(), Row);
	if (Justification == ETextJustify::Left)
	{
		return 0.0f;
	}
	const double Room = Geometry.GetLocalSize().X - GetSpaceAroundText().X;
	const double Free = FMath::Max(Room - MeasureSingleLine(Row, GetFont(), Geometry.Scale).X, 0.0);
	return Justification == ETextJustify::Center ? Free * 0.5 : Free;
}

void STextBlock::PaintRow(const FString& Row, const FVector2D& Position, const FGeometry& Geometry,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bEnabled) const
{
	const ESlateDrawEffect Effect = bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FLinearColor& Tint = InWidgetStyle.GetColorAndOpacityTint();
	const FSlateFontInfo& Font = GetFont();

	const FVector2D& Shadow = GetShadowOffset();
	if (!Shadow.IsZero())
	{
		FSlateDrawElement::MakeText(OutDrawElements, LayerId,
			Geometry.ToPaintGeometry(Position + Shadow, Geometry.GetLocalSize()), Row, Font, Effect,
			GetShadowColorAndOpacity() * Tint);
	}
	FSlateDrawElement::MakeText(OutDrawElements, LayerId, Geometry.ToPaintGeometry(Position, Geometry.GetLocalSize()), Row, Font,
		Effect, GetColorAndOpacity().GetColor(InWidgetStyle) * Tint);
}

int32 STextBlock::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	const FOverrides& Set = GetOverrides();
	const FMargin& Margin = Set.Margin.Value.Get();
	const FVector2D& Shadow = GetShadowOffset();
	const FVector2D Origin(Margin.Left + FMath::Max(-Shadow.X, 0.0), Margin.Top + FMath::Max(-Shadow.Y, 0.0));

	if (!NeedsLayout())
	{
		const bool bShortens = Set.OverflowPolicy.Value.Get() == ETextOverflowPolicy::Ellipsis;
		const FString Shortened = bShortens ? ShortenToRoom(AllottedGeometry) : FString();
		const FString& String = bShortens ? Shortened : Text.Get().ToString();
		PaintRow(String, Origin + FVector2D(GetJustifiedLeft(String, AllottedGeometry), 0.0), AllottedGeometry, OutDrawElements,
			LayerId, InWidgetStyle, bEnabled);
		return LayerId;
	}

	const FTextRows& Rows = UpdateRows(AllottedGeometry.Scale, AllottedGeometry.GetLocalSize().X);
	const FVector2D CullingTop = AllottedGeometry.AbsoluteToLocal(FVector2D(MyCullingRect.Left, MyCullingRect.Top)) - Origin;
	const FVector2D CullingBottom =
		AllottedGeometry.AbsoluteToLocal(FVector2D(MyCullingRect.Right, MyCullingRect.Bottom)) - Origin;
	const int32 LastRow = Rows.GetRowIndexAtHeight(CullingBottom.Y);
	for (int32 RowIndex = Rows.GetRowIndexAtHeight(CullingTop.Y); RowIndex <= LastRow; ++RowIndex)
	{
		const FTextRow Row = Rows.GetRow(RowIndex);
		PaintRow(
			Row.Text, Origin + FVector2D(Row.Left, Row.Top), AllottedGeometry, OutDrawElements, LayerId, InWidgetStyle, bEnabled);
	}
	return LayerId;
}
