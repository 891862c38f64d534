#include "Styling/CoreStyle.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Fonts/CompositeFont.h"
#include "Misc/Paths.h"
#include "Styling/Palette.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{
constexpr float CornerRadius = 4.0f;

// Wide enough that tools may take 16 from it on either side.
const FMargin ButtonPadding(22.0f, 4.0f);
const FMargin PressedButtonPadding(22.0f, 5.0f, 22.0f, 3.0f);

FSlateRoundedBoxBrush RoundedBox(const FColor& Fill, const FColor& OutlineColor, float OutlineWidth = 1.0f)
{
	return FSlateRoundedBoxBrush(
		FSlateColor(FLinearColor(Fill)), CornerRadius, FSlateColor(FLinearColor(OutlineColor)), OutlineWidth);
}

FSlateColorBrush Fill(const FColor& Color)
{
	return FSlateColorBrush(FLinearColor(Color));
}

FSlateColor Text(const FColor& Color)
{
	return FSlateColor(FLinearColor(Color));
}

/** The looks of all widgets of Slate itself. */
class FCoreStyleSet final : public FSlateStyleSet
{
public:
	FCoreStyleSet()
		: FSlateStyleSet("CoreStyle")
	{
		SetContentRoot(FPaths::EngineContentDir() / TEXT("Slate"));
		SetBrushes();
		SetFonts();
		SetButtons();
		SetBareButton();
		SetCheckBoxes();
		SetScrolling();
		SetTextFields();
		SetTabs();
		FSlateStyleRegistry::RegisterSlateStyle(*this);
	}

private:
	FSlateVectorImageBrush Icon(const TCHAR* Name, float Size, const FColor& Tint) const
	{
		return FSlateVectorImageBrush(
			RootToContentDir(FString(TEXT("Icons/")) + Name, TEXT(".svg")), FVector2D(Size, Size), Text(Tint));
	}

	void SetBrushes()
	{
		Set("NoBrush", new FSlateNoResource());
		Set("NoBorder", new FSlateNoResource());
		Set("WhiteBrush", new FSlateColorBrush(FLinearColor::White));
		Set("BlackBrush", new FSlateColorBrush(FLinearColor::Black));
		Set("Window.Background", new FSlateColorBrush(Fill(Palette::Window)));
		Set("Border", new FSlateRoundedBoxBrush(RoundedBox(Palette::Panel, Palette::Outline)));
		Set("ToolTip.Background", new FSlateRoundedBoxBrush(RoundedBox(Palette::ToolTip, Palette::ScrollThumbHovered)));
		Set("FocusRectangle",
			new FSlateRoundedBoxBrush(FSlateColor(FLinearColor::Transparent), CornerRadius, Text(Palette::Accent), 1.5f));
		Set("DefaultForeground", Text(Palette::Foreground));
		Set("DimForeground", Text(Palette::ForegroundDim));
	}

	void SetFonts()
	{
		const FSlateFontInfo Regular = FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::RegularTextSize);
		Set("NormalFont", Regular);
		Set("SmallFont", FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::SmallTextSize));
		Set("BoldFont", FCoreStyle::GetDefaultFontStyle("Bold", FCoreStyle::RegularTextSize));
		Set("DefaultFont.Italic.12", FCoreStyle::GetDefaultFontStyle("Italic", 12));
		Set("DefaultFont", Regular);

		const FTextBlockStyle Normal = FTextBlockStyle().SetFont(Regular).SetSelectedBackgroundColor(Text(Palette::Selection));
		Set("NormalText", Normal);
		Set("NormalText.Subdued", FTextBlockStyle(Normal).SetColorAndOpacity(Text(Palette::ForegroundDim)));
		Set("SmallText", FTextBlockStyle(Normal).SetFont(FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::SmallTextSize)));
		Set("LargeText",
			FTextBlockStyle(Normal)
				.SetFont(FCoreStyle::GetDefaultFontStyle("Bold", 14))
				.SetColorAndOpacity(Text(Palette::ForegroundBright)));
		Set("SmallButtonText", Normal);
		Set("ButtonText", Normal);
	}

	void SetButtons()
	{
		const FButtonStyle Button = FButtonStyle()
										.SetNormal(RoundedBox(Palette::Button, Palette::Outline))
										.SetHovered(RoundedBox(Palette::ButtonHovered, Palette::Outline))
										.SetPressed(RoundedBox(Palette::ButtonPressed, Palette::Accent))
										.SetDisabled(RoundedBox(Palette::ButtonDisabled, Palette::Outline))
										.SetNormalForeground(Text(Palette::Foreground))
										.SetHoveredForeground(Text(Palette::ForegroundBright))
										.SetPressedForeground(Text(Palette::ForegroundBright))
										.SetDisabledForeground(Text(Palette::ForegroundDisabled))
										.SetNormalPadding(ButtonPadding)
										.SetPressedPadding(PressedButtonPadding);
		Set("Button", Button);
		Set("PrimaryButton",
			FButtonStyle(Button)
				.SetNormal(RoundedBox(Palette::AccentPressed, Palette::AccentPressed))
				.SetHovered(RoundedBox(Palette::Accent, Palette::Accent))
				.SetPressed(RoundedBox(Palette::Selection, Palette::Accent))
				.SetNormalForeground(Text(Palette::ForegroundBright)));
		Set("SimpleButton",
			FButtonStyle()
				.SetNormal(FSlateNoResource())
				.SetHovered(RoundedBox(Palette::ButtonHovered, Palette::ButtonHovered))
				.SetPressed(RoundedBox(Palette::ButtonPressed, Palette::ButtonPressed))
				.SetDisabled(FSlateNoResource())
				.SetNormalForeground(Text(Palette::ForegroundDim))
				.SetHoveredForeground(Text(Palette::ForegroundBright))
				.SetPressedForeground(Text(Palette::ForegroundBright))
				.SetDisabledForeground(Text(Palette::ForegroundDisabled)));
	}

	/** A button that is seen by its content alone. */
	void SetBareButton()
	{
		Set("NoBorder",
			FButtonStyle()
				.SetNormal(FSlateNoResource())
				.SetHovered(FSlateNoResource())
				.SetPressed(FSlateNoResource())
				.SetDisabled(FSlateNoResource())
				.SetNormalPadding(ButtonPadding)
				.SetPressedPadding(PressedButtonPadding)
				.SetNormalForeground(Text(Palette::Foreground))
				.SetHoveredForeground(Text(Palette::ForegroundBright))
				.SetPressedForeground(Text(Palette::Accent))
				.SetDisabledForeground(Text(Palette::ForegroundDisabled)));
	}

	void SetCheckBoxes()
	{
		const auto Image = [this](const TCHAR* Name, const FColor& Tint)
		{
			return Icon(Name, 16.0f, Tint);
		};
		Set("Checkbox",
			FCheckBoxStyle()
				.SetUncheckedImage(Image(TEXT("CheckBox"), Palette::ForegroundDim))
				.SetUncheckedHoveredImage(Image(TEXT("CheckBox"), Palette::ForegroundBright))
				.SetUncheckedPressedImage(Image(TEXT("CheckBox"), Palette::Accent))
				.SetCheckedImage(Image(TEXT("CheckBoxChecked"), Palette::Accent))
				.SetCheckedHoveredImage(Image(TEXT("CheckBoxChecked"), Palette::AccentHovered))
				.SetCheckedPressedImage(Image(TEXT("CheckBoxChecked"), Palette::AccentPressed))
				.SetUndeterminedImage(Image(TEXT("CheckBoxUndetermined"), Palette::Accent))
				.SetUndeterminedHoveredImage(Image(TEXT("CheckBoxUndetermined"), Palette::AccentHovered))
				.SetUndeterminedPressedImage(Image(TEXT("CheckBoxUndetermined"), Palette::AccentPressed))
				.SetPadding(FMargin(6.0f, 0.0f, 0.0f, 0.0f)));
	}

	FScrollBarStyle MakeScrollBar() const
	{
		const auto Thumb = [](const FColor& Color)
		{
			return FSlateRoundedBoxBrush(Text(Color), 3.0f);
		};
		return FScrollBarStyle()
			.SetHorizontalBackgroundImage(FSlateNoResource())
			.SetVerticalBackgroundImage(FSlateNoResource())
			.SetNormalThumbImage(Thumb(Palette::ScrollThumb))
			.SetHoveredThumbImage(Thumb(Palette::ScrollThumbHovered))
			.SetDraggedThumbImage(Thumb(Palette::Accent))
			.SetThickness(8.0f);
	}

	void SetScrolling()
	{
		Set("ScrollBar", MakeScrollBar());
		Set("ScrollBox", FScrollBoxStyle().SetTopShadowBrush(FSlateNoResource()).SetBottomShadowBrush(FSlateNoResource()));
	}

	void SetTextFields()
	{
		const FEditableTextStyle EditableText =
			FEditableTextStyle()
				.SetFont(FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::RegularTextSize))
				.SetBackgroundImageSelected(Fill(Palette::Selection))
				.SetCaretImage(Fill(Palette::ForegroundBright));
		Set("NormalEditableText", EditableText);
		Set("NormalEditableTextBox",
			FEditableTextBoxStyle()
				.SetTextStyle(EditableText)
				.SetBackgroundImageNormal(RoundedBox(Palette::Input, Palette::Outline))
				.SetBackgroundImageHovered(RoundedBox(Palette::InputHovered, Palette::ScrollThumbHovered))
				.SetBackgroundImageFocused(RoundedBox(Palette::Input, Palette::Accent))
				.SetBackgroundImageReadOnly(RoundedBox(Palette::InputReadOnly, Palette::Outline))
				.SetForegroundColor(Text(Palette::Foreground))
				.SetFocusedForegroundColor(Text(Palette::ForegroundBright))
				.SetReadOnlyForegroundColor(Text(Palette::Foreground))
				.SetPadding(FMargin(8.0f, 6.0f))
				.SetScrollBarStyle(MakeScrollBar()));
	}

	void SetTabs()
	{
		const FVector4 TopCorners(CornerRadius, CornerRadius, 0.0, 0.0);
		const FButtonStyle CloseButton = FButtonStyle(GetWidgetStyle<FButtonStyle>("SimpleButton"))
											 .SetNormalPadding(FMargin(2.0f))
											 .SetPressedPadding(FMargin(2.0f));
		Set("Docking.Tab.CloseIcon", new FSlateVectorImageBrush(Icon(TEXT("Close"), 12.0f, Palette::ForegroundBright)));
		Set("Docking.Tab",
			FDockTabStyle()
				.SetCloseButtonStyle(CloseButton)
				.SetNormalBrush(FSlateNoResource())
				.SetHoveredBrush(FSlateRoundedBoxBrush(Text(Palette::DarkPanel), TopCorners))
				.SetForegroundBrush(FSlateRoundedBoxBrush(Text(Palette::Panel), TopCorners))
				.SetContentAreaBrush(Fill(Palette::Panel))
				.SetTabWellBrush(Fill(Palette::Window))
				.SetTabTextStyle(GetWidgetStyle<FTextBlockStyle>("NormalText"))
				.SetNormalForegroundColor(Text(Palette::ForegroundDim))
				.SetForegroundForegroundColor(Text(Palette::ForegroundBright))
				.SetActiveStripeBrush(Fill(Palette::Accent))
				.SetFlashColor(Text(Palette::Accent)));
	}
};
}

const ISlateStyle& FCoreStyle::Get()
{
	static const FCoreStyleSet Style;
	return Style;
}

TSharedRef<const FCompositeFont> FCoreStyle::GetDefaultFont()
{
	static const TSharedRef<const FCompositeFont> Font = []
	{
		const TSharedRef<FStandaloneCompositeFont> Roboto = MakeShared<FStandaloneCompositeFont>();
		Roboto->DefaultTypeface.AppendFont("Regular", TEXT("Roboto:regular"))
			.AppendFont("Italic", TEXT("Roboto:regular:italic"))
			.AppendFont("Bold", TEXT("Roboto:bold"))
			.AppendFont("BoldItalic", TEXT("Roboto:bold:italic"))
			.AppendFont("Black", TEXT("Roboto:black"))
			.AppendFont("BlackItalic", TEXT("Roboto:black:italic"))
			.AppendFont("Light", TEXT("Roboto:light"))
			.AppendFont("Medium", TEXT("Roboto:medium"))
			.AppendFont("Mono", TEXT("DejaVu Sans Mono"));
		return Roboto;
	}();
	return Font;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(
	const FName InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings)
{
	return FSlateFontInfo(GetDefaultFont(), InSize, InTypefaceFontName, InOutlineSettings);
}
