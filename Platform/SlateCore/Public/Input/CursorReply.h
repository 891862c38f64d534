#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"

/** What a widget answers to the question for the shape of the cursor. */
class FCursorReply
{
public:
	static FCursorReply Unhandled() { return FCursorReply(); }

	static FCursorReply Cursor(EMouseCursor::Type InCursor)
	{
		FCursorReply Reply;
		Reply.bIsHandled = true;
		Reply.MouseCursor = InCursor;
		return Reply;
	}

	bool IsEventHandled() const { return bIsHandled; }
	EMouseCursor::Type GetCursorType() const { return MouseCursor; }

private:
	bool bIsHandled = false;
	EMouseCursor::Type MouseCursor = EMouseCursor::Default;
};
