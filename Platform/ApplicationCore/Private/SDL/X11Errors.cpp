#include "SDL/X11Errors.h"

#include "CoreMinimal.h"

#include <X11/Xlib.h>

DEFINE_LOG_CATEGORY_STATIC(LogX11, Log, All);

namespace
{
int LogError(Display* Connection, XErrorEvent* Error)
{
	constexpr int32 LongestText = 256;
	char Text[LongestText];
	XGetErrorText(Connection, Error->error_code, Text, LongestText);
	UE_LOG(LogX11, Warning, TEXT("%s, in request %d.%d on resource 0x%x"), UTF8_TO_TCHAR(Text), int32(Error->request_code),
		int32(Error->minor_code), uint32(Error->resourceid));
	return 0;
}
}

void X11Errors::TurnIntoWarnings()
{
	XSetErrorHandler(&LogError);
}
