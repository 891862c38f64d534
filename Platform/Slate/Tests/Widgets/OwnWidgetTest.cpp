#include <gtest/gtest.h>

#include "Framework/Application/SlateApplication.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Rendering/DrawElements.h"
#include "SlateTestWindow.h"
#include "Styling/CoreStyle.h"
#include "Types/PaintArgs.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SPanel.h"
#include "Widgets/SToolTip.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

// Widgets as a tool's author writes them for the engine: made by SNew, SLATE_DECLARE_WIDGET with TSlateAttribute(*this, ...),
// children painted with Args.WithNewParent(this).
namespace
{
/** A coloured rectangle. */
class SSwatch : public SLeafWidget
{
	SLATE_DECLARE_WIDGET(SSwatch, SLeafWidget)

public:
	SLATE_BEGIN_ARGS(SSwatch)
		: _Color(FLinearColor::Red)
		, _Side(20.0f)
	{
	}
	SLATE_ATTRIBUTE(FLinearColor, Color)
	SLATE_ATTRIBUTE(float, Side)
	SLATE_END_ARGS()

	SSwatch()
		: Color(*this, FLinearColor::Black)
		, Side(*this)
	{
	}

	void Construct(const FArguments& InArgs)
	{
		Color.Assign(*this, InArgs._Color);
		Side.Assign(*this, InArgs._Side);
	}

	void SetColor(TAttribute<FLinearColor> InColor) { Color.Assign(*this, MoveTemp(InColor)); }
	void SetSide(TAttribute<float> InSide) { Side.Assign(*this, MoveTemp(InSide)); }

	virtual FVector2D ComputeDesiredSize(float) const override
	{
		++NumMeasured;
		return FVector2D(Side.Get(), Side.Get());
	}

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override
	{
		PaintParent = Args.GetPaintParent();
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(),
			FCoreStyle::Get().GetBrush("WhiteBrush"), ESlateDrawEffect::None, Color.Get());
		return LayerId;
	}

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override
	{
		++NumTicks;
	}

	mutable int32 NumMeasured = 0;
	mutable const SWidget* PaintParent = nullptr;
	int32 NumTicks = 0;

private:
	TSlateAttribute<FLinearColor> Color;
	TSlateAttribute<float> Side;
};

SLATE_IMPLEMENT_WIDGET(SSwatch)
void SSwatch::PrivateRegisterAttributes(FSlateAttributeInitializer& AttributeInitializer)
{
	SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION(AttributeInitializer, Color, EInvalidateWidgetReason::Paint);
	SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION_WITH_NAME(AttributeInitializer, "Edge", Side, EInvalidateWidgetReason::Layout);
}

/** A swatch that keeps still. */
class SStillSwatch final : public SSwatch
{
	SLATE_DECLARE_WIDGET(SStillSwatch, SSwatch)

public:
	SStillSwatch()
		: Extra(*this, 0)
	{
		SetCanTick(false);
	}

private:
	TSlateAttribute<int32> Extra;
};

SLATE_IMPLEMENT_WIDGET(SStillSwatch)
void SStillSwatch::PrivateRegisterAttributes(FSlateAttributeInitializer& AttributeInitializer)
{
	SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION(AttributeInitializer, Extra, EInvalidateWidgetReason::None);
}

/** Children in steps, each further right and further down by as much as it is large. */
class SStairs final : public SPanel
{
public:
	struct FSlot : public FAlignedSlot
	{
		struct FSlotArguments : public TAlignedSlotArguments<FSlot, FSlotArguments>
		{
		};
	};

	SLATE_BEGIN_ARGS(SStairs)
		: _PaintOffset(FVector2D::ZeroVector)
	{
	}
	SLATE_SLOT_ARGUMENT(SStairs::FSlot, Slots)
	/** Added to where the children were arranged, when they are painted. */
	SLATE_ARGUMENT(FVector2D, PaintOffset)
	SLATE_END_ARGS()

	SStairs()
		: Children(this)
	{
		SetCanTick(false);
	}

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(); }

	void Construct(const FArguments& InArgs)
	{
		PaintOffset = InArgs._PaintOffset;
		for (FSlot::FSlotArguments& Each : const_cast<FArguments&>(InArgs)._Slots)
		{
			Children.AddSlot(Each.StealSlot());
		}
	}

	virtual FChildren* GetChildren() override { return &Children; }

	virtual FVector2D ComputeDesiredSize(float) const override
	{
		FVector2D Total = FVector2D::ZeroVector;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			Total += Children[Index].GetWidget()->GetDesiredSize();
		}
		return Total;
	}

	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override
	{
		FVector2D Offset = FVector2D::ZeroVector;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const TSharedRef<SWidget>& Child = Children[Index].GetWidget();
			ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, Offset, Child->GetDesiredSize()));
			Offset += Child->GetDesiredSize();
		}
	}

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override
	{
		FArrangedChildren ArrangedChildren(EVisibility::Visible);
		ArrangeChildren(AllottedGeometry, ArrangedChildren);
		const FPaintArgs NewArgs = Args.WithNewParent(this);
		int32 MaxLayerId = LayerId;
		for (int32 Index = 0; Index < ArrangedChildren.Num(); ++Index)
		{
			const FArrangedWidget& Child = ArrangedChildren[Index];
			const FGeometry Place = Child.Geometry.MakeChild(Child.Geometry.GetLocalSize(), FSlateLayoutTransform(PaintOffset));
			MaxLayerId = FMath::Max(MaxLayerId,
				Child.Widget->Paint(
					NewArgs, Place, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, ShouldBeEnabled(bParentEnabled)));
		}
		return MaxLayerId;
	}

private:
	TPanelChildren<FSlot> Children;
	FVector2D PaintOffset = FVector2D::ZeroVector;
};

/** The same, leaving the painting of the arranged children to the panel. */
class SPlainPanel final : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SPlainPanel) {}
	SLATE_END_ARGS()

	SPlainPanel()
		: Children(this)
	{
		SetCanTick(false);
	}
	void Construct(const FArguments& InArgs, const TSharedRef<SWidget>& Child)
	{
		Children.AddSlot(MoveTemp(SStairs::Slot()[Child]).StealSlot());
	}

	virtual FChildren* GetChildren() override { return &Children; }
	virtual FVector2D ComputeDesiredSize(float) const override { return Children[0].GetWidget()->GetDesiredSize(); }
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override
	{
		ArrangedChildren.AddWidget(
			AllottedGeometry.MakeChild(Children[0].GetWidget(), FVector2D(5.0, 5.0), FVector2D(10.0, 10.0)));
	}
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override
	{
		FArrangedChildren ArrangedChildren(EVisibility::Visible);
		ArrangeChildren(AllottedGeometry, ArrangedChildren);
		return PaintArrangedChildren(
			Args, ArrangedChildren, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	}

private:
	TPanelChildren<SStairs::FSlot> Children;
};

const FColor Red(255, 0, 0);
const FColor Green(0, 255, 0);

template <typename T>
constexpr auto CanBeMadeByNew(int) -> decltype(new T, true)
{
	return true;
}
template <typename T>
constexpr bool CanBeMadeByNew(...)
{
	return false;
}
}

// Own widgets: made by SNew only.
TEST(OwnWidget, PlainNewDoesNotCompile)
{
	static_assert(!CanBeMadeByNew<SSwatch>(0) && !CanBeMadeByNew<SBox>(0) && CanBeMadeByNew<FGeometry>(0));
	const TSharedRef<SSwatch> Swatch = SNew(SSwatch);
	EXPECT_EQ(Swatch->GetType(), FName("SSwatch"));
}

TEST(OwnWidget, TheClassKnowsItsAttributesAndItsParents)
{
	const FSlateWidgetClassData& Class = (SNew(SStillSwatch))->GetWidgetClass();
	EXPECT_EQ(Class.GetWidgetType(), FName("SStillSwatch"));
	const FSlateAttributeDescriptor& Attributes = Class.GetAttributeDescriptor();
	ASSERT_EQ(Attributes.GetAttributeNum(), 3);
	EXPECT_EQ(Attributes.GetAttributeAtIndex(0).Name, FName("Color"));
	EXPECT_EQ(Attributes.FindAttribute("Edge")->InvalidationReason, EInvalidateWidgetReason::Layout);
	EXPECT_EQ(Attributes.FindAttribute("Side"), nullptr);
	EXPECT_EQ(SSwatch::StaticWidgetClass().GetAttributeDescriptor().GetAttributeNum(), 2);
}

TEST(OwnWidget, AnAttributeInvalidatesAsItsClassSays)
{
	TSharedPtr<SStillSwatch> Swatch;
	FSlateTestWindow Window(SNew(SStairs) + SStairs::Slot()[SAssignNew(Swatch, SStillSwatch)]);
	EXPECT_EQ(Window.GetPixel(10, 10), Red);
	const int32 MeasuredBefore = Swatch->NumMeasured;

	Swatch->SetColor(FLinearColor::Green);
	EXPECT_FALSE(Swatch->IsLayoutInvalid());
	EXPECT_EQ(Window.GetPixel(10, 10), Green);
	EXPECT_EQ(Swatch->NumMeasured, MeasuredBefore);

	Swatch->SetSide(40.0f);
	EXPECT_TRUE(Swatch->IsLayoutInvalid());
	EXPECT_EQ(Window.GetPixel(30, 30), Green);

	Swatch->SetSide(40.0f);
	EXPECT_FALSE(Swatch->IsLayoutInvalid());
}

TEST(OwnWidget, ABoundAttributeFollowsItsGetter)
{
	float Side = 20.0f;
	TSharedPtr<SStillSwatch> Swatch;
	FSlateTestWindow Window(
		SNew(SStairs) + SStairs::Slot()[SAssignNew(Swatch, SStillSwatch).Side_Lambda([&Side] { return Side; })]);
	EXPECT_NE(Window.GetPixel(30, 30), Red);

	Side = 40.0f;
	EXPECT_EQ(Window.GetPixel(30, 30), Red);
}

// Children are painted with Args.WithNewParent(this).
TEST(OwnWidget, APanelPaintsItsChildrenWhereItArrangedThem)
{
	TSharedPtr<SStillSwatch> First;
	TSharedPtr<SStillSwatch> Second;
	const TSharedRef<SStairs> Stairs = SNew(SStairs) + SStairs::Slot()[SAssignNew(First, SStillSwatch)] +
		SStairs::Slot()[SNew(SStillSwatch).Color(FLinearColor::Blue)] +
		SStairs::Slot()[SAssignNew(Second, SStillSwatch).Color(FLinearColor::Green)];
	FSlateTestWindow Window(Stairs);

	EXPECT_EQ(Window.GetPixel(10, 10), Red);
	EXPECT_EQ(Window.GetPixel(50, 50), Green);
	EXPECT_NE(Window.GetPixel(30, 10), Red);
	EXPECT_EQ(First->PaintParent, &Stairs.Get());

	// Only what changed is painted, and what touches it: the window's background and two swatches.
	First->PaintParent = nullptr;
	Second->SetColor(FLinearColor::Red);
	FSlateApplication::Get().RequestFrame();
	Window.Frame();
	EXPECT_EQ(Window.CountPaintedElements(), 3);
	EXPECT_EQ(First->PaintParent, nullptr);
	EXPECT_EQ(Window.GetPixel(50, 50), Red);
}

TEST(OwnWidget, AChildThatIsPaintedElsewhereIsSeenAndHitThere)
{
	TSharedPtr<SStillSwatch> Swatch;
	FSlateTestWindow Window(SNew(SStairs).PaintOffset(FVector2D(100.0, 0.0)) + SStairs::Slot()[SAssignNew(Swatch, SStillSwatch)]);
	Window.Frame();
	Window.Frame();

	EXPECT_EQ(Window.GetPixel(110, 10), Red);
	EXPECT_NE(Window.GetPixel(10, 10), Red);
	const FSlateApplication& App = FSlateApplication::Get();
	EXPECT_EQ(&App.LocateWindowUnderMouse(
					  FVector2D(110.0, 10.0) + Window.GetWindow().GetPositionInScreen(), App.GetInteractiveTopLevelWindows())
				   .GetLastWidget()
				   .Get(),
		Swatch.Get());

	const uint64 Frames = App.GetNumFrames();
	Window.Wait(1.0);
	EXPECT_EQ(App.GetNumFrames(), Frames);
}

TEST(OwnWidget, PaintArrangedChildrenPaintsThem)
{
	TSharedPtr<SStillSwatch> Swatch;
	const TSharedRef<SPlainPanel> Panel = SNew(SPlainPanel, SAssignNew(Swatch, SStillSwatch));
	FSlateTestWindow Window(Panel);
	EXPECT_EQ(Window.GetPixel(10, 10), Red);
	EXPECT_NE(Window.GetPixel(2, 2), Red);
	EXPECT_NE(Window.GetPixel(17, 17), Red);
	EXPECT_EQ(Swatch->PaintParent, &Panel.Get());
}

// A widget ticks unless SetCanTick(false).
TEST(OwnWidget, TicksInEveryFrameUnlessToldOtherwise)
{
	const TSharedRef<SSwatch> Ticking = SNew(SSwatch);
	EXPECT_TRUE(Ticking->GetCanTick());
	{
		FSlateTestWindow Window(Ticking);
		const int32 Before = Ticking->NumTicks;
		const uint64 FramesBefore = FSlateApplication::Get().GetNumFrames();
		Window.Wait(0.5);
		EXPECT_GE(Ticking->NumTicks - Before, 29);
		EXPECT_EQ(uint64(Ticking->NumTicks - Before), FSlateApplication::Get().GetNumFrames() - FramesBefore);

		Ticking->SetCanTick(false);
		Window.Wait(0.1);
		const int32 Last = Ticking->NumTicks;
		Window.Wait(0.5);
		EXPECT_EQ(Ticking->NumTicks, Last);
	}

	const TSharedRef<SStillSwatch> Still = SNew(SStillSwatch);
	FSlateTestWindow Window(Still);
	Window.Wait(0.2);
	const uint64 Frames = FSlateApplication::Get().GetNumFrames();
	Window.Wait(1.0);
	EXPECT_EQ(FSlateApplication::Get().GetNumFrames(), Frames);
	EXPECT_EQ(Still->NumTicks, 0);
}

// An idle editor stays idle all the same: widgets of ours say SetCanTick(false).
TEST(OwnWidget, WidgetsOfThePlatformDoNotTick)
{
	const TSharedRef<SWidget> Widgets[] = {SNew(SBorder), SNew(SBox), SNew(SButton), SNew(SCheckBox), SNew(SDockTab),
		SNew(SEditableText), SNew(SEditableTextBox), SNew(SHorizontalBox), SNew(SImage), SNew(SMultiLineEditableText),
		SNew(SMultiLineEditableTextBox), SNew(SOverlay), SNew(SScrollBar), SNew(SScrollBox), SNew(STextBlock), SNew(SToolTip),
		SNew(SVerticalBox), SNew(SWindow), SNullWidget::NullWidget};
	for (const TSharedRef<SWidget>& Widget : Widgets)
	{
		EXPECT_FALSE(Widget->GetCanTick()) << TCHAR_TO_UTF8(*Widget->GetTypeAsString());
	}
}

// The members of FGeometry are const; a geometry is replaced as a whole.
TEST(OwnWidget, AGeometryIsReplacedAsAWhole)
{
	static_assert(std::is_const_v<decltype(FGeometry::Size)> && std::is_const_v<decltype(FGeometry::AbsolutePosition)> &&
		std::is_const_v<decltype(FGeometry::Scale)>);
	FGeometry Geometry;
	EXPECT_EQ(Geometry.GetLocalSize(), FVector2D(0.0, 0.0));
	Geometry = FGeometry::MakeRoot(FVector2D(3.0, 4.0), FSlateLayoutTransform(2.0f, FVector2D(5.0, 6.0)));
	EXPECT_EQ(Geometry.GetAbsoluteSize(), FVector2D(6.0, 8.0));
	EXPECT_EQ(Geometry.GetAbsolutePosition(), FVector2D(5.0, 6.0));
}

TEST(OwnWidget, ABoxIsAPanelAndAScrollBarABorder)
{
	static_assert(std::is_base_of_v<SPanel, SBox> && !std::is_base_of_v<SCompoundWidget, SBox>);
	static_assert(std::is_base_of_v<SBorder, SScrollBar>);
	EXPECT_EQ((SNew(SBox))->GetType(), FName("SBox"));
	EXPECT_EQ((SNew(SScrollBar))->GetType(), FName("SScrollBar"));
}
