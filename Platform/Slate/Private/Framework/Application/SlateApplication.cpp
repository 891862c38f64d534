#include "Framework/Application/SlateApplication.h"

#include "Framework/Application/SlateToolTips.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Misc/App.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/SToolTip.h"
#include "Widgets/SWindow.h"

TSharedPtr<FSlateApplication> FSlateApplication::CurrentApplication;

void FSlateApplication::Create()
{
	Create(MakeShareable(FPlatformApplicationMisc::CreateApplication()));
}

TSharedRef<FSlateApplication> FSlateApplication::Create(const TSharedRef<GenericApplication>& InPlatformApplication)
{
	checkf(!CurrentApplication.IsValid(), TEXT("There is a Slate application already"));
	CurrentApplication = MakeShareable(new FSlateApplication(InPlatformApplication));
	InPlatformApplication->SetMessageHandler(CurrentApplication.ToSharedRef());
	return CurrentApplication.ToSharedRef();
}

FSlateApplication::FSlateApplication(const TSharedRef<GenericApplication>& InPlatformApplication)
	: PlatformApplication(InPlatformApplication)
	, ToolTips(MakeUnique<FSlateToolTips>())
{
	Renderer = FSlateRenderer::Create();
	CurrentTime = FApp::GetCurrentTime();
	LastTickTime = CurrentTime;
}

FSlateApplication::~FSlateApplication() = default;

void FSlateApplication::Shutdown()
{
	if (!CurrentApplication.IsValid())
	{
		return;
	}
	FSlateApplication& App = *CurrentApplication;
	App.CloseAllWindowsImmediately();
	App.PlatformApplication->SetMessageHandler(MakeShared<FGenericApplicationMessageHandler>());
	App.PlatformApplication->DestroyApplication();
	CurrentApplication.Reset();
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const TAttribute<FText>& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}

TSharedPtr<IToolTip> FSlateApplication::GetShownToolTip() const
{
	return ToolTips->GetShown();
}
