#pragma once

#include "GenericPlatform/GenericApplication.h"
#include "Offscreen/OffscreenWindow.h"

#include <condition_variable>
#include <mutex>

/** A desktop in memory: one monitor of 1920 x 1080 pixels, at most one active window, no input of its own. */
class FOffscreenApplication final : public GenericApplication
{
public:
	FOffscreenApplication();
	virtual ~FOffscreenApplication() override;

	virtual void PumpMessages(const float TimeDelta) override;
	virtual bool WaitForMessages(const double Seconds) override;
	virtual void WakeUp() override;
	virtual TSharedRef<FGenericWindow> MakeWindow() override;
	virtual void InitializeWindow(const TSharedRef<FGenericWindow>& Window,
		const TSharedRef<FGenericWindowDefinition>& InDefinition, const TSharedPtr<FGenericWindow>& InParent,
		const bool bShowImmediately) override;
	virtual void SetCapture(const TSharedPtr<FGenericWindow>& InWindow) override { CaptureWindow = InWindow; }
	virtual void* GetCapture() const override;
	virtual FPlatformRect GetWorkArea(const FPlatformRect& CurrentWindow) const override;
	virtual bool HasVisibleWindows() const override { return false; }
	virtual void DestroyApplication() override;

	void Activate(const TSharedRef<FOffscreenWindow>& Window);
	void Deactivate(const FOffscreenWindow& Window);
	bool IsActive(const FOffscreenWindow& Window) const { return ActiveWindow.Pin().Get() == &Window; }
	void Forget(const FOffscreenWindow& Window);

	/** Queues a report for the next PumpMessages; it is dropped if the window is destroyed before. */
	template <typename ResultType, typename... ParameterTypes, typename... ArgumentTypes>
	void Report(FOffscreenWindow& Window,
		ResultType (FGenericApplicationMessageHandler::*Function)(const TSharedRef<FGenericWindow>&, ParameterTypes...),
		ArgumentTypes... Arguments)
	{
		const TSharedRef<FGenericWindow> About = Window.AsShared();
		Reports.Add(FReport{&Window,
			[this, About, Function, Arguments...]()
			{
				((*MessageHandler).*Function)(About, Arguments...);
			}});
	}

private:
	struct FReport
	{
		const FOffscreenWindow* Window;
		TFunction<void()> Deliver;
	};

	TArray<TSharedRef<FOffscreenWindow>> Windows;
	TArray<FReport> Reports;
	TWeakPtr<FOffscreenWindow> ActiveWindow;
	TWeakPtr<FGenericWindow> CaptureWindow;
	std::mutex SleepMutex;
	std::condition_variable Sleep;
	bool bWoken = false;
};
