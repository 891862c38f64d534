#include "Velmora/VelmoraData.h"

#include "AfterFrame.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "HAL/PlatformTime.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "Math/IntVector.h"
#include "Misc/Paths.h"
#include "NameOfText.h"
#include "ToolTabs.h"
#include "ToolsSettings.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"

namespace
{
/** A name for a tool's picture, with local date and time in it. */
FString MakeSnapshotPath(const FString& ToolsPath)
{
	int32 Year = 0, Month = 0, DayOfWeek = 0, Day = 0, Hour = 0, Minute = 0, Second = 0, Millisecond = 0;
	FPlatformTime::SystemTime(Year, Month, DayOfWeek, Day, Hour, Minute, Second, Millisecond);
	const FString Stamp = FString::Printf(TEXT("_%04d%02d%02d_%02d%02d%02d"), Year, Month, Day, Hour, Minute, Second);
	return FPaths::ScreenShotDir() / TEXT("KestrixVelmoraUI") / (FPaths::GetBaseFilename(ToolsPath) + Stamp + TEXT(".png"));
}

/** @param Size  Of the picture; (0, 0) for the window's own. */
bool SaveSnapshot(const TSharedPtr<SWindow>& Window, FVector2D Size, const FString& ImageFilePath)
{
	TArray<FColor> Pixels;
	FIntVector OutSize(0, 0, 0);
	if (!Window.IsValid() || !FSlateApplication::Get().TakeScreenshot(Window.ToSharedRef(), Pixels, OutSize))
	{
		return false;
	}
	if (Size == FVector2D::ZeroVector)
	{
		Size = FVector2D(OutSize.X, OutSize.Y);
	}
	const bool bSaved = FKestrixModule::SnapshotWidget(Window, Size, ImageFilePath);
	UE_LOG(PythonKX, Log, TEXT("SnapshotVelmora OutSize: %d, %d @ %s"), OutSize.X, OutSize.Y, *ImageFilePath);
	return bSaved;
}
}

bool UVelmoraData::LaunchVelmoraTool(const FString& ToolsPath)
{
	const FString FullPath = FKestrixModule::GetToolAbsolutePath(ToolsPath);
	if (!FPaths::FileExists(FullPath))
	{
		UE_LOG(PythonKX, Warning, TEXT("File: %s not exist. LaunchVemloraTool by: %s"), *ToolsPath, *FullPath);
		return false;
	}
	if (!FSlateApplication::IsInitialized())
	{
		UE_LOG(PythonKX, Warning, TEXT("File: %s is not launched, there are no windows here."), *ToolsPath);
		return false;
	}

	FName TabId;
	FVector2D Size = FVector2D::ZeroVector;
	FVector2D Position = FVector2D::ZeroVector;
	if (!FKestrixModule::Get().RegisterToolTab(ToolsPath, TabId, Size, Position))
	{
		return false;
	}
	if (FWidgetTickScope::IsInside())
	{
		RunAfterFrame([TabId, Size, Position, ToolsPath] { OpenTool(TabId, Size, Position, ToolsPath); });
		return true;
	}
	return OpenTool(TabId, Size, Position, ToolsPath);
}

bool UVelmoraData::RequestClose(const FString& ToolsPath)
{
	const FName TabName = NameOfText(ToolsPath);
	for (const FName TabId : RegisteredToolTabIds)
	{
		if (!IsSameTool(TabId, TabName))
		{
			continue;
		}
		if (const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(TabId)))
		{
			return Tab->RequestCloseTab();
		}
		UE_LOG(PythonKX, Warning, TEXT("Can't find tab: %s"), *ToolsPath);
	}
	UE_LOG(PythonKX, Warning, TEXT("Can't find Tab:"));
	if (const TSharedPtr<SDockTab> Tab = FKestrixModule::FindOpenToolTab(TabName))
	{
		return Tab->RequestCloseTab();
	}
	LogRegisteredTools(TabName);
	return false;
}

FString UVelmoraData::SnapshotVelmoraWindow(const FString& ToolsPath, FVector2D OverrideWindowSize, FString ImageFilePath)
{
	const TSharedPtr<SDockTab> Tab = FKestrixModule::FindOpenToolTab(NameOfText(ToolsPath));
	if (!Tab.IsValid())
	{
		return FString();
	}
	// A tab that is just closing has left its window already.
	const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(Tab.ToSharedRef());
	if (!Window.IsValid())
	{
		return FString();
	}
	// The system reads no further than a null character.
	ImageFilePath = FString(*ImageFilePath);
	if (ImageFilePath.IsEmpty())
	{
		ImageFilePath = MakeSnapshotPath(ToolsPath);
	}
	if (FPaths::IsRelative(ImageFilePath))
	{
		ImageFilePath = MakeFullPath(FPaths::ProjectDir() / ImageFilePath);
	}
	if (FWidgetTickScope::IsInside())
	{
		const TWeakPtr<SWindow> WeakWindow = Window;
		RunAfterFrame([WeakWindow, OverrideWindowSize, ImageFilePath]
			{ SaveSnapshot(WeakWindow.Pin(), OverrideWindowSize, ImageFilePath); });
		return ImageFilePath;
	}
	return SaveSnapshot(Window, OverrideWindowSize, ImageFilePath) ? ImageFilePath : FString();
}
