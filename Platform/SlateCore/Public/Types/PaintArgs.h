#pragma once

#include "CoreMinimal.h"

class FSlateDamage;
class SWidget;

/** What a paint of a window hands down: the same for all widgets, but for the parent. */
class FPaintArgs
{
public:
	FPaintArgs(const SWidget* InPaintParent, const FSlateDamage& InDamage, double InCurrentTime, float InDeltaTime)
		: PaintParent(InPaintParent)
		, Damage(InDamage)
		, CurrentTime(InCurrentTime)
		, DeltaTime(InDeltaTime)
	{
	}

	/** The arguments with which a widget paints its children. */
	FPaintArgs WithNewParent(const SWidget* InPaintParent) const
	{
		return FPaintArgs(InPaintParent, Damage, CurrentTime, DeltaTime);
	}

	/** The widget whose OnPaint is painting; null for a window. */
	const SWidget* GetPaintParent() const { return PaintParent; }

	/** The part of the window that is painted; what does not meet it need not be. */
	const FSlateDamage& GetDamage() const { return Damage; }

	double GetCurrentTime() const { return CurrentTime; }
	float GetDeltaTime() const { return DeltaTime; }

private:
	const SWidget* PaintParent;
	const FSlateDamage& Damage;
	double CurrentTime;
	float DeltaTime;
};
