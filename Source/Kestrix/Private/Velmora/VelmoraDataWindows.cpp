#include "Velmora/VelmoraData.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "HAL/PlatformTime.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "Math/IntVector.h"
#include "Misc/Paths.h"
#include "NameOfText.h"
#include "ToolTabs.h"
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
}

bool UVelmoraData::LaunchVelmoraTool(const FString& ToolsPath)
{
	const FString FullPath = FKestrixModule::GetToolAbsolutePath(ToolsPath);
	if (!FPaths::FileExists(FullPath))
	{
		UE_LOG(PythonKX, Warning, TEXT("File: %s not exist. LaunchVemloraTool by: %s"), *ToolsPath, *FullPath);
		return false;
	}

	FName TabId;
	FVector2D Size = FVector2D::ZeroVector;
	FVector2D Position = FVector2D::ZeroVector;
	if (!FKestrixModule::Get().RegisterToolTab(ToolsPath, TabId, Size, Position))
	{
		return false;
	}
	if (Size.X > 0.0)
	{
		OpenToolInNewWindow(TabId, Size, Position, NameOfText(ToolsPath));
		return false;
	}
	if (Position.X > 0.0)
	{
		UE_LOG(PythonKX, Warning, TEXT("TabPosition Not Implemented yet %s"), *ToolsPath);
	}
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabId));
	return true;
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
	TArray<FColor> Pixels;
	FIntVector Size(0, 0, 0);
	FSlateApplication::Get().TakeScreenshot(Window.ToSharedRef(), Pixels, Size);
	if (OverrideWindowSize == FVector2D::ZeroVector)
	{
		OverrideWindowSize = FVector2D(Size.X, Size.Y);
	}
	if (ImageFilePath.IsEmpty())
	{
		ImageFilePath = MakeSnapshotPath(ToolsPath);
	}
	if (FPaths::IsRelative(ImageFilePath))
	{
		ImageFilePath = FPaths::ConvertRelativePathToFull(ImageFilePath);
	}
	const bool bSaved = FKestrixModule::SnapshotWidget(Window, OverrideWindowSize, ImageFilePath);
	UE_LOG(PythonKX, Log, TEXT("SnapshotVelmora OutSize: %d, %d @ %s"), Size.X, Size.Y, *ImageFilePath);
	return bSaved ? ImageFilePath : FString();
}
