#include "EditorDriver.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "ImageUtils.h"
#include "InputPlayer.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "Rendering/SlateRenderer.h"
#include "UObject/Stack.h"
#include "WidgetFinder.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, EditorDriver)

namespace
{
/** Neither a folder, nor a text that the system reads otherwise: to that a null character ends a name. */
bool NamesAFile(const FString& Path)
{
	const FString Name = FPaths::GetCleanFilename(Path);
	int32 Null = INDEX_NONE;
	return !Name.IsEmpty() && Name != TEXT(".") && Name != TEXT("..") && !Path.FindChar(TEXT('\0'), Null);
}

/** A name without its ending would write over whatever file bears it. */
FString MakePicturePath(const FString& Path)
{
	const FString Named = Path.EndsWith(TEXT(".png")) ? Path : Path + TEXT(".png");
	return FPaths::IsRelative(Named) ? FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), Named) : Named;
}

/** Steps of a drag between its ends. */
constexpr int32 DragSteps = 10;

/** A held key repeats after this many seconds, and from then on every RepeatPeriod seconds. */
constexpr double RepeatDelay = 0.5;
constexpr double RepeatPeriod = 1.0 / 30.0;

void Raise(const FString& Message)
{
	FFrame::KismetExecutionMessage(*Message, ELogVerbosity::Error);
}

/** A test that asks for more than this, in seconds, would seem to hang. */
constexpr float LongestTime = 3600.0f;

bool IsTimeToPass(float Seconds)
{
	if (Seconds >= 0.0f && Seconds <= LongestTime)
	{
		return true;
	}
	Raise(FString::Printf(TEXT("There is no waiting for %g seconds, only for 0 to %g"), Seconds, LongestTime));
	return false;
}

/** Frames cannot pass while an event is on its way: the event would be overtaken by later ones. */
bool MayRunFrames()
{
	if (const FRoutedEvent* Event = FSlateApplication::Get().GetRoutedEvent())
	{
		Raise(FString::Printf(TEXT("The editor cannot be driven from within the event '%s' of %s"), Event->Kind,
			*WidgetFinder::Describe(*Event->Widget)));
		return false;
	}
	return true;
}

TSharedPtr<SWidget> FindOrRaise(const FWidgetDescription& Description)
{
	FString Error;
	const TSharedPtr<SWidget> Widget = WidgetFinder::Find(Description, Error);
	if (!Widget.IsValid())
	{
		Raise(Error);
	}
	return Widget;
}

/** Moves the mouse over a widget. @return False after raising, when the widget cannot be hit there. */
bool MoveOver(const FWidgetDescription& Description, float U = 0.5f, float V = 0.5f)
{
	if (!MayRunFrames())
	{
		return false;
	}
	// What was changed before the call has its place after a frame.
	InputPlayer::Run(0.0);
	const TSharedPtr<SWidget> Widget = FindOrRaise(Description);
	if (!Widget.IsValid())
	{
		return false;
	}
	if (!Widget->IsShownInFrame())
	{
		const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindTabOfContent(Widget.ToSharedRef());
		const bool bBehind = Tab.IsValid() && !Tab->IsForeground();
		Raise(FString::Printf(
			TEXT("%s is not shown%s"), *Description.ToString(), bBehind ? TEXT("; its tab is behind another") : TEXT("")));
		return false;
	}
	const FVector2D Place = Widget->GetTickSpaceGeometry().GetAbsolutePositionAtCoordinates(FVector2D(U, V));
	InputPlayer::MoveMouse(Place);

	const FWidgetPath Under =
		FSlateApplication::Get().LocateWindowUnderMouse(Place, FSlateApplication::Get().GetInteractiveTopLevelWindows());
	if (Under.ContainsWidget(Widget.Get()))
	{
		return true;
	}
	const FString Instead = Under.IsValid() ? WidgetFinder::Describe(Under.GetLastWidget().Get()) : FString(TEXT("nothing"));
	const TCHAR* const Reason = Widget->IsEnabledInTree() ? TEXT("cannot be hit") : TEXT("is disabled");
	Raise(FString::Printf(TEXT("%s %s; at its place is %s"), *Description.ToString(), Reason, *Instead));
	return false;
}

/** What has the mouse, or is the deepest under it. */
FString DescribeTaker()
{
	FSlateApplication& App = FSlateApplication::Get();
	if (const TSharedPtr<SWidget> Captor = App.GetMouseCaptor())
	{
		return WidgetFinder::Describe(*Captor);
	}
	const FWidgetPath Under = App.LocateWindowUnderMouse(App.GetCursorPos(), App.GetInteractiveTopLevelWindows());
	return Under.IsValid() ? WidgetFinder::Describe(Under.GetLastWidget().Get()) : FString();
}

FString ClickWith(EMouseButtons::Type Button, const FWidgetDescription& Description, bool bTwice)
{
	if (!MoveOver(Description))
	{
		return FString();
	}
	InputPlayer::Press(Button);
	const FString Taker = DescribeTaker();
	InputPlayer::Release(Button);
	if (bTwice)
	{
		InputPlayer::Press(Button, true);
		InputPlayer::Release(Button);
	}
	return Taker;
}

bool ParseChord(const FString& Text, InputPlayer::FChord& OutChord)
{
	FString Unknown;
	if (InputPlayer::FChord::Parse(Text, OutChord, Unknown))
	{
		return MayRunFrames();
	}
	Raise(FString::Printf(TEXT("'%s' in '%s' is no key"), *Unknown, *Text));
	return false;
}
}

FString UEditorDriver::Click(const FString& Tab, const FString& Type, const FString& Text, int32 Index)
{
	return ClickWith(EMouseButtons::Left, {Tab, Type, Text, Index}, false);
}

FString UEditorDriver::DoubleClick(const FString& Tab, const FString& Type, const FString& Text, int32 Index)
{
	return ClickWith(EMouseButtons::Left, {Tab, Type, Text, Index}, true);
}

FString UEditorDriver::RightClick(const FString& Tab, const FString& Type, const FString& Text, int32 Index)
{
	return ClickWith(EMouseButtons::Right, {Tab, Type, Text, Index}, false);
}

FString UEditorDriver::Hover(const FString& Tab, const FString& Type, const FString& Text, int32 Index, float U, float V)
{
	return MoveOver({Tab, Type, Text, Index}, U, V) ? DescribeTaker() : FString();
}

FString UEditorDriver::Drag(const FString& Tab, const FString& Type, const FString& Text, int32 Index, float DeltaX, float DeltaY)
{
	if (!MoveOver({Tab, Type, Text, Index}))
	{
		return FString();
	}
	const FVector2D Start = FSlateApplication::Get().GetCursorPos();
	InputPlayer::Press(EMouseButtons::Left);
	const FString Taker = DescribeTaker();
	for (int32 Step = 1; Step <= DragSteps; ++Step)
	{
		InputPlayer::MoveMouse(Start + FVector2D(DeltaX, DeltaY) * Step / DragSteps);
	}
	InputPlayer::Release(EMouseButtons::Left);
	return Taker;
}

void UEditorDriver::Scroll(const FString& Tab, const FString& Type, const FString& Text, int32 Index, float Delta)
{
	if (MoveOver({Tab, Type, Text, Index}))
	{
		InputPlayer::Wheel(Delta);
	}
}

void UEditorDriver::TypeText(const FString& Text)
{
	if (!MayRunFrames())
	{
		return;
	}
	InputPlayer::FChord Enter;
	Enter.Key = EKeys::Enter;
	for (const TCHAR Character : Text)
	{
		if (Character == TEXT('\n'))
		{
			InputPlayer::KeyDown(Enter, false);
			InputPlayer::KeyUp(Enter);
		}
		else if (!InputPlayer::TypeCharacter(Character))
		{
			const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
			Raise(FString::Printf(TEXT("'%c' was not taken: %s has the keyboard focus"), Character,
				Focused.IsValid() ? *WidgetFinder::Describe(*Focused) : TEXT("nothing")));
			return;
		}
	}
}

void UEditorDriver::PressKey(const FString& Chord)
{
	InputPlayer::FChord Parsed;
	if (ParseChord(Chord, Parsed))
	{
		InputPlayer::KeyDown(Parsed, false);
		InputPlayer::KeyUp(Parsed);
	}
}

void UEditorDriver::HoldKey(const FString& Chord, float Seconds)
{
	InputPlayer::FChord Parsed;
	if (!IsTimeToPass(Seconds) || !ParseChord(Chord, Parsed))
	{
		return;
	}
	InputPlayer::KeyDown(Parsed, false);
	InputPlayer::Run(FMath::Min<double>(Seconds, RepeatDelay));
	for (double Held = RepeatDelay; Held < Seconds; Held += RepeatPeriod)
	{
		InputPlayer::KeyDown(Parsed, true);
		InputPlayer::Run(RepeatPeriod);
	}
	InputPlayer::KeyUp(Parsed);
}

FString UEditorDriver::GetText(const FString& Tab, const FString& Type, const FString& Text, int32 Index)
{
	const TSharedPtr<SWidget> Widget = FindOrRaise({Tab, Type, Text, Index});
	return Widget.IsValid() ? WidgetFinder::GetShownText(*Widget) : FString();
}

bool UEditorDriver::IsVisible(const FString& Tab, const FString& Type, const FString& Text, int32 Index)
{
	FString Unused;
	const TSharedPtr<SWidget> Widget = WidgetFinder::Find({Tab, Type, Text, Index}, Unused);
	return Widget.IsValid() && Widget->IsShownInFrame() && Widget->GetVisibility().IsVisible() &&
		!Widget->GetPaintBounds().IsEmpty();
}

int32 UEditorDriver::Count(const FString& Tab, const FString& Type, const FString& Text)
{
	return WidgetFinder::FindAll({Tab, Type, Text, 0}).Num();
}

void UEditorDriver::Wait(float Seconds)
{
	if (IsTimeToPass(Seconds) && MayRunFrames())
	{
		InputPlayer::Run(Seconds);
	}
}

FString UEditorDriver::Screenshot(const FString& Tab, const FString& Path)
{
	const FString FullPath = MakePicturePath(Path);
	if (!NamesAFile(Path))
	{
		Raise(FString::Printf(TEXT("'%s' is no name of a picture"), *Path));
		return FString();
	}
	if (FPaths::IsRelative(Path) && !FPaths::IsUnderDirectory(FullPath, FPaths::ProjectDir()))
	{
		Raise(FString::Printf(
			TEXT("'%s' leads out of the project; give an absolute path for a picture that is to stand elsewhere"), *Path));
		return FString();
	}
	const TSharedPtr<SWindow> Window = WidgetFinder::FindWindow(Tab);
	TArray<FColor> Pixels;
	FIntVector Size;
	if (!Window.IsValid() || !FSlateApplication::Get().TakeScreenshot(Window.ToSharedRef(), Pixels, Size))
	{
		Raise(FString::Printf(TEXT("There is no tab and no window \"%s\" to take a picture of"), *Tab));
		return FString();
	}
	TArray64<uint8> Compressed;
	FImageUtils::PNGCompressImageArray(Size.X, Size.Y, Pixels, Compressed);
	if (!FFileHelper::SaveArrayToFile(Compressed, *FullPath))
	{
		Raise(FString::Printf(TEXT("The picture cannot be written to '%s'"), *FullPath));
		return FString();
	}
	return FullPath;
}

FString UEditorDriver::DumpTree(const FString& Tab)
{
	const TSharedPtr<SWidget> Root = WidgetFinder::FindRoot(Tab);
	if (!Root.IsValid())
	{
		Raise(FString::Printf(TEXT("There is no tab and no window \"%s\""), *Tab));
		return FString();
	}
	return WidgetFinder::Dump(*Root);
}

int32 UEditorDriver::CountPaintedElements()
{
	return FSlateApplication::Get().GetRenderer()->GetStatistics().ElementsPainted;
}

int64 UEditorDriver::CountFrames()
{
	return static_cast<int64>(FSlateApplication::Get().GetNumFrames());
}
