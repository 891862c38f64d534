#include "Framework/Application/SlateApplication.h"
#include "ImageUtils.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "Math/IntVector.h"
#include "Misc/FileHelper.h"
#include "ToolTabs.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

TSharedPtr<SDockTab> FKestrixModule::FindOpenToolTab(FName TabName)
{
	for (const TSharedPtr<SDockTab>& Tab : OpenToolTabs)
	{
		if (Tab.IsValid() && IsSameTool(FName(*Tab->GetLayoutIdentifier().ToString()), TabName))
		{
			return Tab;
		}
	}
	return nullptr;
}

bool FKestrixModule::SnapshotWidget(TSharedPtr<SWidget> Widget, FVector2D Size, FString FilePath)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWidget> FocusedWidget = Application.GetKeyboardFocusedWidget();
	const TSharedPtr<SWindow> ActiveWindow = Application.GetActiveTopLevelWindow();

	// A picture may be larger than the screen.
	// clang-format off
	const TSharedRef<SWindow> Window = SNew(SWindow)
		.ClientSize(Size)
		.AutoCenter(EAutoCenter::None)
		.ScreenPosition(FVector2D::ZeroVector)
		.SaneWindowPlacement(false);
	// clang-format on
	Window->SetContent(Widget.ToSharedRef());
	Application.AddWindow(Window, /* bShowImmediately */ false);
	Window->ShowWindow();

	TArray<FColor> Colors;
	FIntVector OutSize(0, 0, 0);
	const bool bTaken = Application.TakeScreenshot(Window, Colors, OutSize);
	UE_LOG(PythonKX, Log, TEXT("OutSizeB: %d, %d"), OutSize.X, OutSize.Y);

	// The widget goes before its window does, so that it stands for itself again and is laid out anew.
	Window->SetContent(SNullWidget::NullWidget);
	Window->HideWindow();
	Window->RequestDestroyWindow();
	Widget->Invalidate(EInvalidateWidgetReason::Layout);

	// The new window may have taken both when it was shown.
	if (ActiveWindow.IsValid())
	{
		ActiveWindow->BringToFront();
	}
	if (FocusedWidget.IsValid())
	{
		Application.SetKeyboardFocus(FocusedWidget);
	}
	else
	{
		Application.ClearKeyboardFocus();
	}
	UE_LOG(PythonKX, Log, TEXT("WindowSize: %f %f  vs OutSize: %d, %d"), Size.X, Size.Y, OutSize.X, OutSize.Y);

	if (!bTaken || Colors.Num() == 0)
	{
		return false;
	}
	TArray64<uint8> Compressed;
	FImageUtils::PNGCompressImageArray(OutSize.X, OutSize.Y, Colors, Compressed);
	return FFileHelper::SaveArrayToFile(Compressed, *FilePath);
}
