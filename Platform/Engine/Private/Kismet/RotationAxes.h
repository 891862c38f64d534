#pragma once

#include "Math/Rotator.h"
#include "Math/Vector.h"

/**
 * Where a rotation turns the forward, right and up axis of the engine's left-handed space: first by roll, then by pitch, then by
 * yaw. Positive angles turn up, to the right and clockwise as seen from behind.
 */
struct FRotationAxes
{
	FVector Forward;
	FVector Right;
	FVector Up;

	explicit FRotationAxes(const FRotator& Rotator);
	FRotationAxes(const FVector& InForward, const FVector& InRight, const FVector& InUp);

	FVector Rotate(const FVector& Vector) const;
	/** The opposite of Rotate. */
	FVector Unrotate(const FVector& Vector) const;

	/** The rotation that turns back. */
	FRotationAxes Inverse() const;

	/** The angles, pitch from -90 to 90, the others in (-180, 180]. */
	FRotator ToRotator() const;
};
