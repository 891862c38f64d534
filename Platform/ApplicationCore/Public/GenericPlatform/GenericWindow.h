#pragma once

#include "CoreMinimal.h"
#include "Math/IntRect.h"
#include "GenericPlatform/GenericWindowDefinition.h"

/** A native window. Coordinates are desktop pixels of the client area. */
class APPLICATIONCORE_API FGenericWindow
{
public:
	FGenericWindow() = default;
	FGenericWindow(const FGenericWindow&) = delete;
	FGenericWindow& operator=(const FGenericWindow&) = delete;
	virtual ~FGenericWindow() = default;

	virtual void ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height) = 0;
	virtual void MoveWindowTo(int32 X, int32 Y) = 0;
	virtual void BringToFront(bool bForce = false) = 0;

	/** Closes the native window; nothing else may be called afterwards. */
	virtual void Destroy() = 0;

	virtual void Minimize() = 0;
	virtual void Maximize() = 0;
	virtual void Restore() = 0;
	virtual void Show() = 0;
	virtual void Hide() = 0;

	virtual bool IsMaximized() const = 0;
	virtual bool IsMinimized() const = 0;
	virtual bool IsVisible() const = 0;

	/** The rectangle that the window has, or had before it was maximised. */
	virtual bool GetRestoredDimensions(int32& X, int32& Y, int32& Width, int32& Height) = 0;

	/** The client area as it is now. */
	virtual FIntRect GetClientRect() const = 0;

	/** Gives the window the keyboard. */
	virtual void SetWindowFocus() = 0;
	virtual void SetOpacity(const float InOpacity) = 0;

	/** @param X, Y  Relative to the client area. */
	virtual bool IsPointInWindow(int32 X, int32 Y) const = 0;
	virtual bool IsForegroundWindow() const = 0;

	virtual void SetText(const TCHAR* const Text) = 0;

	/** Pixels of this window per unit of the user interface. */
	virtual float GetDPIScaleFactor() const = 0;
	virtual void SetDPIScaleFactor(const float Factor) = 0;

	virtual void* GetOSWindowHandle() const = 0;
	const FGenericWindowDefinition& GetDefinition() const { return *Definition; }

	/**
	 * Shows pixels in the window. The window keeps what it needs to repaint itself when it is uncovered.
	 *
	 * @param Bgra    Four bytes a pixel in the order B, G, R, A, top row first; read during the call only.
	 * @param Width   Columns of the picture; a picture of another size than the window's is cut.
	 * @param Height  Rows of the picture.
	 * @param Stride  Bytes from one row to the next.
	 * @param Damage  The parts that differ from the last call. An empty list shows nothing new.
	 */
	virtual void PresentPixels(const uint8* Bgra, int32 Width, int32 Height, int32 Stride, const TArray<FIntRect>& Damage) = 0;

protected:
	TSharedPtr<FGenericWindowDefinition> Definition;
};
