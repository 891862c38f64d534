#include "GenericPlatform/GenericApplication.h"

GenericApplication::GenericApplication(const TSharedPtr<ICursor>& InCursor)
	: Cursor(InCursor)
	, MessageHandler(MakeShared<FGenericApplicationMessageHandler>())
{
}

void GenericApplication::SetMessageHandler(const TSharedRef<FGenericApplicationMessageHandler>& InMessageHandler)
{
	MessageHandler = InMessageHandler;
}
