#pragma once

#include "GenericPlatform/GenericWindow.h"

class FOffscreenApplication;

/** A window that nobody sees. What it reports goes the way of a real one: at the application's next PumpMessages. */
class FOffscreenWindow final : public FGenericWindow, public TSharedFromThis<FOffscreenWindow>
{
public:
	explicit FOffscreenWindow(FOffscreenApplication& InApplication)
		: Application(&InApplication)
	{
	}

	void Initialize(const TSharedRef<FGenericWindowDefinition>& InDefinition);

	/** The application goes away before the window does. */
	void Orphan() { Application = nullptr; }

	virtual void ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height) override;
	virtual void MoveWindowTo(int32 X, int32 Y) override;
	virtual void BringToFront(bool bForce) override;
	virtual void Destroy() override;
	virtual void Minimize() override;
	virtual void Maximize() override;
	virtual void Restore() override;
	virtual void Show() override;
	virtual void Hide() override;
	virtual bool IsMaximized() const override { return bMaximized; }
	virtual bool IsMinimized() const override { return bMinimized; }
	virtual bool IsVisible() const override { return bVisible; }
	virtual bool GetRestoredDimensions(int32& X, int32& Y, int32& Width, int32& Height) override;
	virtual FIntRect GetClientRect() const override { return Rect; }
	virtual void SetWindowFocus() override;
	virtual void SetOpacity(const float InOpacity) override { Definition->Opacity = InOpacity; }
	virtual bool IsPointInWindow(int32 X, int32 Y) const override;
	virtual bool IsForegroundWindow() const override;
	virtual void SetText(const TCHAR* const Text) override { Definition->Title = Text; }
	virtual float GetDPIScaleFactor() const override { return DPIScaleFactor; }
	virtual void SetDPIScaleFactor(const float Factor) override { DPIScaleFactor = Factor; }
	virtual void* GetOSWindowHandle() const override { return const_cast<FOffscreenWindow*>(this); }

	/** Nobody looks: the renderer keeps the pixels for whoever reads them. */
	virtual void PresentPixels(const uint8*, int32, int32, int32, const TArray<FIntRect>&) override {}

private:
	void SetRect(const FIntRect& NewRect);

	FOffscreenApplication* Application;
	FIntRect Rect;
	FIntRect RestoredRect;
	float DPIScaleFactor = 1.0f;
	bool bVisible = false;
	bool bMaximized = false;
	bool bMinimized = false;
	bool bWasShown = false;
};
