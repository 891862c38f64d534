#pragma once

#include "CoreMinimal.h"

/** Where the text of the clipboard lives. */
class IPlatformClipboard
{
public:
	virtual ~IPlatformClipboard() = default;

	virtual void SetText(const TCHAR* Text) = 0;
	virtual FString GetText() const = 0;
};

/** The clipboard that FPlatformApplicationMisc uses; the process's own until an application brings the desktop's. */
void SetPlatformClipboard(TUniquePtr<IPlatformClipboard> Clipboard);
void ResetPlatformClipboard();
