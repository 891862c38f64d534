#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

#include "Fonts/FontMeasure.h"
#include "Framework/Text/TextRows.h"
#include "LogCapture.h"
#include "Rendering/SlateRenderer.h"
#include "SlateTestWindow.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
FText Text(const TCHAR* String)
{
	return FText::FromString(String);
}

FVector2D Measure(const TCHAR* String, const FSlateFontInfo& Font)
{
	return FSlateApplication::Get().GetRenderer()->GetFontMeasureService()->Measure(String, Font);
}

/** Some text in a box of a given width, at the top left of a window. */
struct FTextBlockTest : testing::Test
{
	void Show(const STextBlock::FArguments& Arguments, FOptionalSize Width = FOptionalSize())
	{
		Label = MakeTDecl<STextBlock>(FSlateTypeText("STextBlock"), RequiredArgs::MakeRequiredArgs()) <<= Arguments;
		// clang-format off
		Window.Emplace(
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)
			[
				SNew(SBox).WidthOverride(Width)[Label.ToSharedRef()]
			]
			+ SVerticalBox::Slot().AutoHeight().Padding(FMargin(0.0f, 50.0f))
			[
				SNew(STextBlock).Text(Text(TEXT("Neighbour")))
			]);
		// clang-format on
	}

	FVector2D Size() const { return Label->GetDesiredSize(); }
	double LineHeight() const { return Measure(TEXT("x"), Label->GetFont()).Y; }

	/** The first and last columns, of the rows from Top to Bottom, that differ from the window's background. */
	FIntPoint FindInk(int32 Top, int32 Bottom)
	{
		TArray<FColor> Pixels;
		FIntVector PixelsSize;
		FSlateApplication::Get().TakeScreenshot(Window->GetWindow().AsShared(), Pixels, PixelsSize);
		const FColor Background = Pixels.Last();
		FIntPoint Ink(INDEX_NONE, INDEX_NONE);
		for (int32 X = 0; X < PixelsSize.X; ++X)
		{
			for (int32 Y = Top; Y < Bottom; ++Y)
			{
				if (Pixels[Y * PixelsSize.X + X] != Background)
				{
					Ink = FIntPoint(Ink.X == INDEX_NONE ? X : Ink.X, X);
					break;
				}
			}
		}
		return Ink;
	}

	TSharedPtr<STextBlock> Label;
	FText Model;
	TOptional<FSlateTestWindow> Window;
};
}

TEST_F(FTextBlockTest, IsAsLargeAsItsText)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("Some words"))));
	EXPECT_EQ(Size(), Measure(TEXT("Some words"), Label->GetFont()));
}

TEST_F(FTextBlockTest, LinesStandBelowEachOther)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("long line\nx"))));
	EXPECT_EQ(Size(), FVector2D(Measure(TEXT("long line"), Label->GetFont()).X, 2.0 * LineHeight()));
	EXPECT_LT(FindInk(LineHeight(), 2.0 * LineHeight()).Y, 12);
}

TEST_F(FTextBlockTest, AnEqualTextPaintsNothing)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("same"))));
	const uint64 FramesBefore = FSlateApplication::Get().GetNumFrames();
	Label->SetText(Text(TEXT("same")));
	Window->Frame();
	EXPECT_TRUE(Window->GetWindow().GetDamage().IsEmpty());
	EXPECT_LE(FSlateApplication::Get().GetNumFrames(), FramesBefore + 1);
}

TEST_F(FTextBlockTest, AnotherTextOfTheSameSizePaintsTheLabelAlone)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("one"))), 100.0f);
	Label->SetText(Text(TEXT("eno")));
	Window->Frame();
	// The window's background and the label.
	EXPECT_EQ(Window->CountPaintedElements(), 2);
	EXPECT_EQ(FSlateApplication::Get().GetRenderer()->GetStatistics().RectanglesDamaged, 1);
}

TEST_F(FTextBlockTest, AChangeBehindABindingShows)
{
	Model = Text(TEXT("one"));
	Show(STextBlock::FArguments().Text_Lambda([this] { return Model; }));
	Model = Text(TEXT("a longer one"));
	EXPECT_EQ(Label->GetText().ToString(), TEXT("a longer one"));
	FSlateApplication::Get().RequestFrame();
	Window->Frame();
	EXPECT_EQ(Size().X, Measure(TEXT("a longer one"), Label->GetFont()).X);
}

TEST_F(FTextBlockTest, WrapsAtAGivenWidth)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("one two three four"))).WrapTextAt(60.0f));
	EXPECT_LE(Size().X, 60.0);
	EXPECT_GT(Size().Y, LineHeight());
}

TEST_F(FTextBlockTest, WrapsAtItsOwnWidthWithinTheFrame)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("one two three four five six seven"))).AutoWrapText(true), 100.0f);
	const double Narrow = Size().Y;
	EXPECT_GT(Narrow, LineHeight());

	Label->SetText(Text(TEXT("one")));
	Window->Frame();
	EXPECT_EQ(Size().Y, LineHeight());
}

TEST_F(FTextBlockTest, BreaksALongWordOnlyWhereThePolicyAllowsIt)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("unbreakableword"))).WrapTextAt(40.0f));
	EXPECT_EQ(Size().Y, LineHeight());
	Label->SetWrappingPolicy(ETextWrappingPolicy::AllowPerCharacterWrapping);
	Window->Frame();
	EXPECT_GT(Size().Y, LineHeight());
	EXPECT_LE(Size().X, 40.0);
}

TEST_F(FTextBlockTest, StandsWhereTheJustificationPutsIt)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("abc"))), 200.0f);
	const FIntPoint Left = FindInk(0, LineHeight());
	EXPECT_LT(Left.X, 3);

	Label->SetJustification(ETextJustify::Right);
	const FIntPoint Right = FindInk(0, LineHeight());
	EXPECT_GT(Right.Y, 195);
	EXPECT_LT(Right.Y, 200);

	Label->SetJustification(ETextJustify::Center);
	const FIntPoint Center = FindInk(0, LineHeight());
	EXPECT_NEAR((Center.X + Center.Y) * 0.5, 100.0, 2.0);
}

TEST_F(FTextBlockTest, TextFromRightToLeftStandsAtTheRight)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("\u05d0\u05d1\u05d2"))), 200.0f);

	const FIntPoint Ink = FindInk(0, LineHeight());
	EXPECT_GT(Ink.X, 150);
	EXPECT_LE(Ink.Y, 200);
}

TEST_F(FTextBlockTest, EllipsisStandsForWhatDoesNotFit)
{
	const TCHAR* const Long = TEXT("A label that is longer than its room");
	Show(STextBlock::FArguments().Text(Text(Long)), 100.0f);
	EXPECT_GT(FindInk(0, LineHeight()).Y, 110);

	Label->SetOverflowPolicy(ETextOverflowPolicy::Ellipsis);
	const FIntPoint Shortened = FindInk(0, LineHeight());
	EXPECT_LE(Shortened.Y, 100);
	EXPECT_GT(Shortened.Y, 80);
	EXPECT_EQ(Label->GetText().ToString(), FString(Long));

	Show(STextBlock::FArguments().Text(Text(TEXT("Fits"))).OverflowPolicy(ETextOverflowPolicy::Ellipsis), 100.0f);
	const FIntPoint Fitting = FindInk(0, LineHeight());
	Label->SetOverflowPolicy(ETextOverflowPolicy::Clip);
	EXPECT_EQ(FindInk(0, LineHeight()), Fitting);
}

TEST_F(FTextBlockTest, LinesAreJustifiedEachByItself)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("wide line\nx"))).Justification(ETextJustify::Right), 200.0f);
	EXPECT_GT(FindInk(0, LineHeight()).Y, 195);
	const FIntPoint Second = FindInk(LineHeight(), 2.0 * LineHeight());
	EXPECT_GT(Second.X, 185);
	EXPECT_GT(Second.Y, 195);
}

TEST_F(FTextBlockTest, TheStyleCountsUntilSomethingIsSet)
{
	FTextBlockStyle Style = FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText");
	Style.SetFont(FCoreStyle::GetDefaultFontStyle("Bold", 20)).SetColorAndOpacity(FSlateColor(FLinearColor::Red));
	Show(STextBlock::FArguments().Text(Text(TEXT("abc"))));
	const FVector2D Normal = Size();

	Label->SetTextStyle(&Style);
	Window->Frame();
	EXPECT_GT(Size().Y, Normal.Y);
	EXPECT_EQ(Label->GetColorAndOpacity(), FSlateColor(FLinearColor::Red));

	Label->SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 8));
	Label->SetColorAndOpacity(FSlateColor(FLinearColor::Green));
	Window->Frame();
	EXPECT_LT(Size().Y, Normal.Y);
	EXPECT_EQ(Label->GetColorAndOpacity(), FSlateColor(FLinearColor::Green));

	Label->SetTextStyle(nullptr);
	Window.Reset();
}

TEST_F(FTextBlockTest, PaintsInItsColour)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("\u2588\u2588"))).ColorAndOpacity(FSlateColor(FLinearColor::Red)));
	EXPECT_EQ(Window->GetPixel(Size().X / 4, Size().Y / 2), FColor(255, 0, 0, 255));
}

TEST_F(FTextBlockTest, AShadowTakesRoomAndShowsBesideTheText)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("\u2588"))).ColorAndOpacity(FSlateColor(FLinearColor::White)));
	const FVector2D Plain = Size();
	Label->SetShadowColorAndOpacity(FLinearColor(0.0f, 1.0f, 0.0f, 1.0f));
	Label->SetShadowOffset(FVector2D(4.0, 0.0));
	Window->Frame();
	EXPECT_EQ(Size(), Plain + FVector2D(4.0, 0.0));
	EXPECT_EQ(Window->GetPixel(Plain.X + 2, Plain.Y / 2), FColor(0, 255, 0, 255));
}

TEST_F(FTextBlockTest, MarginAndLeastWidthMakeItLarger)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("abc"))));
	const FVector2D Plain = Size();
	Label->SetMargin(FMargin(3.0f, 5.0f));
	Window->Frame();
	EXPECT_EQ(Size(), Plain + FVector2D(6.0, 10.0));
	Label->SetMinDesiredWidth(300.0f);
	Window->Frame();
	EXPECT_EQ(Size().X, 300.0);
}

TEST_F(FTextBlockTest, TheLineHeightPercentageSpreadsLines)
{
	Show(STextBlock::FArguments().Text(Text(TEXT("a\nb"))).LineHeightPercentage(2.0f));
	EXPECT_EQ(Size().Y, 4.0 * LineHeight());
}

TEST_F(FTextBlockTest, OfALineThatIsTooLongTheBeginningShowsAndTheLogSaysSo)
{
	const FLogCapture Log(TEXT("LogSlateText"));
	FString Line;
	while (Line.Len() < FTextRows::MaxLineLength)
	{
		Line += TEXT("0123456789");
	}
	Show(STextBlock::FArguments().Text(FText::FromString(Line + TEXT("more"))));
	Window->Frame();

	EXPECT_EQ(Size().X, Measure(*Line.Left(FTextRows::MaxLineLength), Label->GetFont()).X);
	EXPECT_TRUE(Label->GetText().ToString().Equals(Line + TEXT("more")));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("A line of 1048584 characters is too long to be shown whole; the first 1048576 are shown.")}));
}
