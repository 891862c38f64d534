#pragma once

#include "CoreMinimal.h"

class FSlateDamage;

/** What a paint of a window hands down unchanged. */
class FPaintArgs
{
public:
	FPaintArgs(const FSlateDamage& InDamage, double InCurrentTime, float InDeltaTime)
		: Damage(InDamage)
		, CurrentTime(InCurrentTime)
		, DeltaTime(InDeltaTime)
	{
	}

	/** The part of the window that is painted; what does not meet it need not be. */
	const FSlateDamage& GetDamage() const { return Damage; }

	double GetCurrentTime() const { return CurrentTime; }
	float GetDeltaTime() const { return DeltaTime; }

private:
	const FSlateDamage& Damage;
	double CurrentTime;
	float DeltaTime;
};
