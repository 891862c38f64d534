#pragma once

#include "GenericPlatform/ICursor.h"

struct SDL_Cursor;

/** The desktop's mouse cursor. Its position is the one of the last report, so that asking costs no round trip. */
class FSDLCursor final : public ICursor
{
public:
	FSDLCursor();
	virtual ~FSDLCursor() override;

	virtual FVector2D GetPosition() const override { return Position; }
	virtual void SetPosition(const int32 X, const int32 Y) override;
	virtual void SetType(const EMouseCursor::Type InNewCursor) override;
	virtual EMouseCursor::Type GetType() const override { return Type; }
	virtual void Show(bool bShow) override;

	void NotePosition(const FVector2D& InPosition) { Position = InPosition; }

private:
	FVector2D Position = FVector2D::ZeroVector;
	EMouseCursor::Type Type = EMouseCursor::Default;
	bool bShown = true;
	SDL_Cursor* Shapes[EMouseCursor::TotalCursorCount] = {};
};
