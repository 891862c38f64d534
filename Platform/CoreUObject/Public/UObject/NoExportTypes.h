#pragma once

#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "Misc/Timespan.h"
#include "UObject/ObjectMacros.h"
#include "UObject/PropertyOf.h"

/** A guid's text is its 32 digits. */
template <>
struct UECodeGen::TStructText<FGuid>
{
	static COREUOBJECT_API void Export(FString& ValueStr, const void* Src);
	static COREUOBJECT_API bool Import(const TCHAR*& Buffer, void* Dest);
};

// The structures of Core, which reflect nothing by themselves, told to the header tool.
#if !CPP

#include "NoExportTypes.generated.h"

/** A point or direction in space, in centimetres where it is a place. */
USTRUCT(noexport, BlueprintType,
	meta = (ScriptName = "Vector", HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeVector",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakVector"))
struct FVector
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector)
	double X;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector)
	double Y;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector)
	double Z;
};

/** A point, direction or size in the plane. */
USTRUCT(noexport, BlueprintType,
	meta = (ScriptName = "Vector2D", HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeVector2D",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakVector2D"))
struct FVector2D
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector2D)
	double X;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector2D)
	double Y;
};

/** A rotation in degrees. */
USTRUCT(noexport, BlueprintType,
	meta = (ScriptName = "Rotator", HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeRotator",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakRotator"))
struct FRotator
{
	/** Around the right axis: up and down. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Rotator)
	double Pitch;

	/** Around the up axis: to the sides. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Rotator)
	double Yaw;

	/** Around the forward axis: tilt. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Rotator)
	double Roll;
};

/** A linear colour, channels 0 to 1 where it is displayed. */
USTRUCT(noexport, BlueprintType)
struct FLinearColor
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor)
	float R;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor)
	float G;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor)
	float B;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor)
	float A;
};

/** An sRGB colour of 8 bits a channel. */
USTRUCT(noexport, BlueprintType)
struct FColor
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color)
	uint8 B;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color)
	uint8 G;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color)
	uint8 R;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color)
	uint8 A;
};

/** A point on a grid. */
USTRUCT(noexport, BlueprintType)
struct FIntPoint
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntPoint)
	int32 X;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntPoint)
	int32 Y;
};

/** A globally unique identifier. */
USTRUCT(noexport, BlueprintType)
struct FGuid
{
	UPROPERTY(EditAnywhere, Category = Guid)
	int32 A;

	UPROPERTY(EditAnywhere, Category = Guid)
	int32 B;

	UPROPERTY(EditAnywhere, Category = Guid)
	int32 C;

	UPROPERTY(EditAnywhere, Category = Guid)
	int32 D;
};

/** A date and time of day. */
USTRUCT(noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeDateTime",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakDateTime"))
struct FDateTime
{
};

/** A length of time. */
USTRUCT(noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeTimespan",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakTimespan"))
struct FTimespan
{
};

#endif
