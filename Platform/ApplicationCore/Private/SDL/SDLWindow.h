#pragma once

#include "GenericPlatform/GenericWindow.h"

struct SDL_Window;

/** A window of the desktop. Its pixels lie in the window's software surface, which also repaints it when it is uncovered. */
class FSDLWindow final : public FGenericWindow
{
public:
	virtual ~FSDLWindow() override;

	void Initialize(const TSharedRef<FGenericWindowDefinition>& InDefinition, const FSDLWindow* Parent);

	virtual void ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height) override;
	virtual void MoveWindowTo(int32 X, int32 Y) override;
	virtual void BringToFront(bool bForce) override;
	virtual void Destroy() override;
	virtual void Minimize() override;
	virtual void Maximize() override;
	virtual void Restore() override;
	virtual void Show() override;
	virtual void Hide() override;
	virtual bool IsMaximized() const override;
	virtual bool IsMinimized() const override;
	virtual bool IsVisible() const override;
	virtual bool GetRestoredDimensions(int32& X, int32& Y, int32& Width, int32& Height) override;
	virtual FIntRect GetClientRect() const override;
	virtual void SetWindowFocus() override;
	virtual void SetOpacity(const float InOpacity) override;
	virtual bool IsPointInWindow(int32 X, int32 Y) const override;
	virtual bool IsForegroundWindow() const override;
	virtual void SetText(const TCHAR* const Text) override;
	virtual float GetDPIScaleFactor() const override { return DPIScaleFactor; }
	virtual void SetDPIScaleFactor(const float Factor) override { DPIScaleFactor = Factor; }
	virtual void* GetOSWindowHandle() const override { return Handle; }
	virtual void PresentPixels(
		const uint8* Bgra, int32 Width, int32 Height, int32 Stride, const TArray<FIntRect>& Damage) override;

	/** Shows the kept pixels again. False when they are lost. */
	bool RepaintFromKeptPixels();

	/** Keeps the rectangle that Restore leads back to. */
	void NoteRect();

	/** False for menus, tool tips and the like, which never hold the keyboard. */
	bool IsRegular() const { return Definition->Type == EWindowType::Normal; }

	SDL_Window* GetHandle() const { return Handle; }

private:
	bool HasFlags(uint32 Flags) const;

	SDL_Window* Handle = nullptr;
	uint32 ParentId = 0;
	FIntRect RestoredRect;
	float DPIScaleFactor = 1.0f;
	bool bPresented = false;
};
