#include "HAL/PlatformApplicationMisc.h"

#include "Misc/CommandLine.h"
#include "Misc/Parse.h"
#include "Offscreen/OffscreenApplication.h"
#include "PlatformClipboard.h"
#include "SDL/SDLApplication.h"

namespace
{

class FProcessClipboard final : public IPlatformClipboard
{
public:
	virtual void SetText(const TCHAR* InText) override { Text = InText; }
	virtual FString GetText() const override { return Text; }

private:
	FString Text;
};

TUniquePtr<IPlatformClipboard>& GetClipboard()
{
	static TUniquePtr<IPlatformClipboard> Clipboard = MakeUnique<FProcessClipboard>();
	return Clipboard;
}

}

void SetPlatformClipboard(TUniquePtr<IPlatformClipboard> Clipboard)
{
	GetClipboard() = MoveTemp(Clipboard);
}

void ResetPlatformClipboard()
{
	GetClipboard() = MakeUnique<FProcessClipboard>();
}

GenericApplication* FPlatformApplicationMisc::CreateApplication()
{
	if (!FParse::Param(FCommandLine::Get(), TEXT("RenderOffScreen")))
	{
		if (GenericApplication* Application = FSDLApplication::Create())
		{
			return Application;
		}
	}
	return new FOffscreenApplication();
}

void FPlatformApplicationMisc::ClipboardCopy(const TCHAR* Str)
{
	GetClipboard()->SetText(Str);
}

void FPlatformApplicationMisc::ClipboardPaste(FString& Dest)
{
	Dest = GetClipboard()->GetText();
}
