#pragma once

#include "GenericPlatform/ICursor.h"

/** A cursor that is where it was put. */
class FOffscreenCursor final : public ICursor
{
public:
	virtual FVector2D GetPosition() const override { return Position; }
	virtual void SetPosition(const int32 X, const int32 Y) override { Position = FVector2D(X, Y); }
	virtual void SetType(const EMouseCursor::Type InNewCursor) override { Type = InNewCursor; }
	virtual EMouseCursor::Type GetType() const override { return bShown ? Type : EMouseCursor::None; }
	virtual void Show(bool bShow) override { bShown = bShow; }

private:
	FVector2D Position = FVector2D(0.0, 0.0);
	EMouseCursor::Type Type = EMouseCursor::Default;
	bool bShown = true;
};
