#include "GenericPlatform/GenericApplication.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Misc/CommandLine.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

/** Writes down what is reported, as text. */
class FReportLog final : public FGenericApplicationMessageHandler
{
public:
	virtual bool OnSizeChanged(const TSharedRef<FGenericWindow>&, const int32 Width, const int32 Height, bool) override
	{
		Lines.Add(FString::Printf(TEXT("size %d %d"), Width, Height));
		return true;
	}
	virtual void OnMovedWindow(const TSharedRef<FGenericWindow>&, const int32 X, const int32 Y) override
	{
		Lines.Add(FString::Printf(TEXT("move %d %d"), X, Y));
	}
	virtual bool OnWindowActivationChanged(const TSharedRef<FGenericWindow>& Window, const EWindowActivation Type) override
	{
		const TCHAR* What = Type == EWindowActivation::Deactivate ? TEXT("deactivate") : TEXT("activate");
		Lines.Add(FString::Printf(TEXT("%s %s"), What, *Window->GetDefinition().Title));
		return true;
	}

	TArray<FString> Lines;
};

class OffscreenApplication : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		FCommandLine::Set(TEXT("-RenderOffScreen"));
		Application = TUniquePtr<GenericApplication>(FPlatformApplicationMisc::CreateApplication());
		Application->SetMessageHandler(Reports);
	}

	TSharedRef<FGenericWindow> Open(const TCHAR* Title, EWindowType Type = EWindowType::Normal, bool bActivates = true)
	{
		const TSharedRef<FGenericWindowDefinition> Definition = MakeShared<FGenericWindowDefinition>();
		Definition->Title = Title;
		Definition->Type = Type;
		Definition->XDesiredPositionOnScreen = 100.0f;
		Definition->YDesiredPositionOnScreen = 50.0f;
		Definition->WidthDesiredOnScreen = 640.0f;
		Definition->HeightDesiredOnScreen = 480.0f;
		Definition->SizeLimits.SetMinWidth(200.0f);
		Definition->ActivationPolicy = bActivates ? EWindowActivationPolicy::Always : EWindowActivationPolicy::Never;
		const TSharedRef<FGenericWindow> Window = Application->MakeWindow();
		Application->InitializeWindow(Window, Definition, nullptr, true);
		return Window;
	}

	TArray<FString> Pump()
	{
		Reports->Lines.Reset();
		Application->PumpMessages(0.0f);
		return Reports->Lines;
	}

	TUniquePtr<GenericApplication> Application;
	TSharedRef<FReportLog> Reports = MakeShared<FReportLog>();
};

}

TEST_F(OffscreenApplication, NobodySeesItsWindows)
{
	EXPECT_FALSE(Application->HasVisibleWindows());
}

TEST_F(OffscreenApplication, AWindowHasThePlaceAndSizeOfItsDefinition)
{
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	EXPECT_EQ(Window->GetClientRect(), FIntRect(100, 50, 740, 530));
	EXPECT_TRUE(Window->IsVisible());
	EXPECT_EQ(Window->GetDPIScaleFactor(), 1.0f);
	EXPECT_TRUE(Window->IsPointInWindow(639, 479));
	EXPECT_FALSE(Window->IsPointInWindow(640, 0));
}

TEST_F(OffscreenApplication, WakeUpEndsOneWait)
{
	std::thread Other([this] { Application->WakeUp(); });
	EXPECT_FALSE(Application->WaitForMessages(1000.0));
	Other.join();
	Application->WakeUp();
	EXPECT_FALSE(Application->WaitForMessages(1000.0));
}

TEST_F(OffscreenApplication, ReportsWaitForThePump)
{
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	EXPECT_EQ(Reports->Lines.Num(), 0);
	EXPECT_TRUE(Application->WaitForMessages(1000.0));
	EXPECT_EQ(Pump(), TArray<FString>({TEXT("activate A")}));
	EXPECT_FALSE(Application->WaitForMessages(0.0));

	Window->ReshapeWindow(10, 20, 300, 200);
	EXPECT_EQ(Pump(), TArray<FString>({TEXT("move 10 20"), TEXT("size 300 200")}));
	Window->ReshapeWindow(10, 20, 300, 200);
	EXPECT_EQ(Pump(), TArray<FString>());
}

TEST_F(OffscreenApplication, OneWindowIsActiveAtATime)
{
	const TSharedRef<FGenericWindow> First = Open(TEXT("A"));
	const TSharedRef<FGenericWindow> Second = Open(TEXT("B"));
	EXPECT_EQ(Pump(), TArray<FString>({TEXT("activate A"), TEXT("deactivate A"), TEXT("activate B")}));
	EXPECT_TRUE(Second->IsForegroundWindow());

	First->SetWindowFocus();
	EXPECT_EQ(Pump(), TArray<FString>({TEXT("deactivate B"), TEXT("activate A")}));
	EXPECT_FALSE(Second->IsForegroundWindow());

	First->Hide();
	EXPECT_EQ(Pump(), TArray<FString>({TEXT("deactivate A")}));
}

TEST_F(OffscreenApplication, AToolTipTakesNoActivation)
{
	const TSharedRef<FGenericWindow> Main = Open(TEXT("A"));
	const TSharedRef<FGenericWindow> ToolTip = Open(TEXT("Tip"), EWindowType::ToolTip, false);
	EXPECT_TRUE(ToolTip->IsVisible());
	EXPECT_EQ(Pump(), TArray<FString>({TEXT("activate A")}));
	EXPECT_TRUE(Main->IsForegroundWindow());
}

TEST_F(OffscreenApplication, AMaximisedWindowFillsTheWorkAreaAndComesBack)
{
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	Window->Maximize();
	const FPlatformRect Area = Application->GetWorkArea(FPlatformRect());
	EXPECT_EQ(Window->GetClientRect(), FIntRect(Area.Left, Area.Top, Area.Right, Area.Bottom));
	EXPECT_TRUE(Window->IsMaximized());

	Window->Minimize();
	EXPECT_TRUE(Window->IsMinimized());
	Window->Restore();
	EXPECT_TRUE(Window->IsMaximized());
	EXPECT_FALSE(Window->IsMinimized());

	int32 X = 0;
	int32 Y = 0;
	int32 Width = 0;
	int32 Height = 0;
	EXPECT_TRUE(Window->GetRestoredDimensions(X, Y, Width, Height));
	EXPECT_EQ(FIntRect(X, Y, X + Width, Y + Height), FIntRect(100, 50, 740, 530));
	Window->Restore();
	EXPECT_EQ(Window->GetClientRect(), FIntRect(100, 50, 740, 530));
}

TEST_F(OffscreenApplication, SizeLimitsHold)
{
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	Window->ReshapeWindow(0, 0, 10, -5);
	EXPECT_EQ(Window->GetClientRect(), FIntRect(0, 0, 200, 1));
}

TEST_F(OffscreenApplication, ADestroyedWindowReportsNothingMore)
{
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	Window->MoveWindowTo(1, 2);
	Window->Destroy();
	EXPECT_EQ(Pump(), TArray<FString>());
	EXPECT_FALSE(Window->IsVisible());
	EXPECT_FALSE(Window->IsForegroundWindow());
}

TEST_F(OffscreenApplication, AWindowMayOutliveTheApplication)
{
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	Application.Reset();
	Window->Destroy();
	EXPECT_FALSE(Window->IsVisible());
}

TEST_F(OffscreenApplication, TheMouseIsCapturedByAtMostOneWindow)
{
	EXPECT_EQ(Application->GetCapture(), nullptr);
	const TSharedRef<FGenericWindow> Window = Open(TEXT("A"));
	Application->SetCapture(Window);
	EXPECT_EQ(Application->GetCapture(), Window->GetOSWindowHandle());
	Application->SetCapture(nullptr);
	EXPECT_EQ(Application->GetCapture(), nullptr);
}

TEST_F(OffscreenApplication, TheCursorIsWhereItWasPut)
{
	Application->Cursor->SetPosition(12, 34);
	Application->Cursor->SetType(EMouseCursor::Hand);
	EXPECT_EQ(Application->Cursor->GetPosition(), FVector2D(12.0, 34.0));
	EXPECT_EQ(Application->Cursor->GetType(), EMouseCursor::Hand);
	Application->Cursor->Show(false);
	EXPECT_EQ(Application->Cursor->GetType(), EMouseCursor::None);
}

TEST_F(OffscreenApplication, ModifiersAreThoseThatWereSet)
{
	EXPECT_FALSE(Application->GetModifierKeys().IsControlDown());
	Application->SetModifierKeys(FModifierKeysState(false, true, true, false, false, false, false, false, true));
	const FModifierKeysState& Keys = Application->GetModifierKeys();
	EXPECT_TRUE(Keys.IsShiftDown());
	EXPECT_FALSE(Keys.IsLeftShiftDown());
	EXPECT_TRUE(Keys.IsLeftControlDown());
	EXPECT_FALSE(Keys.IsAltDown());
	EXPECT_TRUE(Keys.AreCapsLocked());
}

TEST_F(OffscreenApplication, TheClipboardGivesBackWhatItWasGiven)
{
	FString Text = TEXT("before");
	FPlatformApplicationMisc::ClipboardCopy(TEXT(""));
	FPlatformApplicationMisc::ClipboardPaste(Text);
	EXPECT_TRUE(Text.IsEmpty());
	FPlatformApplicationMisc::ClipboardCopy(TEXT("Grüße\n\U0001F600"));
	FPlatformApplicationMisc::ClipboardPaste(Text);
	EXPECT_TRUE(Text.Equals(TEXT("Grüße\n\U0001F600")));
}
