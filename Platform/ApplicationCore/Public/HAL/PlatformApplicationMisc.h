#pragma once

#include "CoreMinimal.h"

class GenericApplication;

/** Services of the desktop. */
struct APPLICATIONCORE_API FPlatformApplicationMisc
{
	/**
	 * The application of this process: with windows on the desktop, or, with `-RenderOffScreen` on the command line or
	 * where there is no display, with windows that exist in memory only. The caller owns it; there may be one at a time.
	 */
	static GenericApplication* CreateApplication();

	/** Puts text on the clipboard. Off-screen the clipboard is the process's own. */
	static void ClipboardCopy(const TCHAR* Str);

	/** The clipboard's text, empty when it holds none. */
	static void ClipboardPaste(FString& Dest);
};
