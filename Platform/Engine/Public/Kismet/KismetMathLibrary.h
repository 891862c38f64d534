#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/NoExportTypes.h"
#include "KismetMathLibrary.generated.h"

/** Arithmetic of vectors, rotations, colours, dates and lengths of time. Scripts have most of it as methods and operators of these. */
UCLASS(meta = (ScriptName = "MathLibrary"))
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** (0, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Zero", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Zero();

	/** (1, 1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "One", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_One();

	/** (1, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Forward", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Forward();

	/** (-1, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Backward", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Backward();

	/** (0, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Up", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Up();

	/** (0, 0, -1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Down", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Down();

	/** (0, 1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Right", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Right();

	/** (0, -1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (ScriptConstant = "Left", ScriptConstantHost = "/Script/CoreUObject.Vector"))
	static FVector Vector_Left();

	/** Makes a vector of its three numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (NativeMakeFunc))
	static FVector MakeVector(double X, double Y, double Z);

	/** The three numbers of a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (NativeBreakFunc))
	static void BreakVector(FVector InVec, double& X, double& Y, double& Z);

	/** Sets the three numbers. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (ScriptMethod = "Set"))
	static void Vector_Set(UPARAM(ref) FVector& A, double X, double Y, double Z);

	/** A + B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Add", ScriptOperator = "+;+="))
	static FVector Add_VectorVector(FVector A, FVector B);

	/** A + B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "AddFloat", ScriptOperator = "+;+="))
	static FVector Add_VectorFloat(FVector A, double B);

	/** A + B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "AddInt"))
	static FVector Add_VectorInt(FVector A, int32 B);

	/** A - B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Subtract", ScriptOperator = "-;-="))
	static FVector Subtract_VectorVector(FVector A, FVector B);

	/** A - B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "SubtractFloat", ScriptOperator = "-;-="))
	static FVector Subtract_VectorFloat(FVector A, double B);

	/** A - B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "SubtractInt"))
	static FVector Subtract_VectorInt(FVector A, int32 B);

	/** A * B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Multiply", ScriptOperator = "*;*="))
	static FVector Multiply_VectorVector(FVector A, FVector B);

	/** A * B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "MultiplyFloat", ScriptOperator = "*;*="))
	static FVector Multiply_VectorFloat(FVector A, double B);

	/** A * B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "MultiplyInt"))
	static FVector Multiply_VectorInt(FVector A, int32 B);

	/** A / B, number by number. Divided by zero a number is zero, with a warning. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Divide", ScriptOperator = "/;/="))
	static FVector Divide_VectorVector(FVector A, FVector B);

	/** A / B, the same B for each number. Zero, with a warning, where B is zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "DivideFloat", ScriptOperator = "/;/="))
	static FVector Divide_VectorFloat(FVector A, double B);

	/** A / B, the same B for each number. Zero, with a warning, where B is zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "DivideInt"))
	static FVector Divide_VectorInt(FVector A, int32 B);

	/** The vector that points the other way. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Negated", ScriptOperator = "neg"))
	static FVector NegateVector(FVector A);

	/** Whether all numbers are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool EqualExactly_VectorVector(FVector A, FVector B);

	/** Whether any number differs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqualExactly_VectorVector(FVector A, FVector B);

	/** Whether no number differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsNearEqual"))
	static bool EqualEqual_VectorVector(FVector A, FVector B, float ErrorTolerance = 1.e-4f);

	/** Whether any number differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsNotNearEqual"))
	static bool NotEqual_VectorVector(FVector A, FVector B, float ErrorTolerance = 1.e-4f);

	/** The dot product. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Dot", ScriptOperator = "|"))
	static double Dot_VectorVector(FVector A, FVector B);

	/** The cross product. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Cross", ScriptOperator = "^"))
	static FVector Cross_VectorVector(FVector A, FVector B);

	/** The vector turned by a rotation. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Rotate"))
	static FVector GreaterGreater_VectorRotator(FVector A, FRotator B);

	/** The vector turned back by a rotation. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Unrotate"))
	static FVector LessLess_VectorRotator(FVector A, FRotator B);

	/** The vector turned about an axis, which need not have length 1, by an angle in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "RotateAngleAxis"))
	static FVector RotateAngleAxis(FVector InVect, double AngleDeg, FVector Axis);

	/** The length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Length"))
	static double VSize(FVector A);

	/** The square of the length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "LengthSquared"))
	static double VSizeSquared(FVector A);

	/** The length without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Length2D"))
	static double VSizeXY(FVector A);

	/** The square of the length without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Length2DSquared"))
	static double VSizeXYSquared(FVector A);

	/** Whether all numbers are zero within the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsNearlyZero"))
	static bool Vector_IsNearlyZero(const FVector& A, float Tolerance = 1.e-4f);

	/** Whether all numbers are zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsZero"))
	static bool Vector_IsZero(const FVector& A);

	/** Whether any number is infinite or not a number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsNAN"))
	static bool Vector_IsNAN(const FVector& A);

	/** Whether the square of the length is 1 within the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsUnit"))
	static bool Vector_IsUnit(const FVector& A, float SquaredLenthTolerance = 1.e-4f);

	/** Whether the length is 1, closely enough for a direction. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "IsNormal"))
	static bool Vector_IsNormal(const FVector& A);

	/** The vector with length 1; zero if the square of its length is not above the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Normal"))
	static FVector Normal(FVector A, float Tolerance = 1.e-4f);

	/** The vector without Z, with length 1; zero if it is too short for that. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Normal2D"))
	static FVector Vector_Normal2D(FVector A, float Tolerance = 1.e-4f);

	/** Gives the vector length 1. False, and the vector stays, if it is too short for that. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (ScriptMethod = "Normalize"))
	static bool Vector_Normalize(UPARAM(ref) FVector& A, float Tolerance = 1.e-8f);

	/** From A, at Alpha 0, to B, at Alpha 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "LerpTo"))
	static FVector VLerp(FVector A, FVector B, double Alpha);

	/** How far two points are apart. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Distance"))
	static double Vector_Distance(FVector V1, FVector V2);

	/** The square of how far two points are apart. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "DistanceSquared"))
	static double Vector_DistanceSquared(FVector V1, FVector V2);

	/** How far two points are apart without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Distance2D"))
	static double Vector_Distance2D(FVector V1, FVector V2);

	/** The square of how far two points are apart without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Distance2DSquared"))
	static double Vector_Distance2DSquared(FVector V1, FVector V2);

	/** The numbers without their signs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "GetAbs"))
	static FVector Vector_GetAbs(const FVector& A);

	/** The largest number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "GetMaxElement"))
	static double GetMaxElement(FVector A);

	/** The smallest number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "GetMinElement"))
	static double GetMinElement(FVector A);

	/** The smaller numbers of two vectors. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "ComponentMin"))
	static FVector Vector_ComponentMin(FVector A, FVector B);

	/** The larger numbers of two vectors. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "ComponentMax"))
	static FVector Vector_ComponentMax(FVector A, FVector B);

	/** The numbers to the nearest multiples of the grid. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "SnappedToGrid"))
	static FVector Vector_SnappedToGrid(FVector InVect, double InGridSize);

	/** The part of V that points along the target. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "ProjectOnTo"))
	static FVector ProjectVectorOnToVector(FVector V, FVector Target);

	/** The part of V that lies in the plane with that normal. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "ProjectOnToPlane"))
	static FVector ProjectVectorOnToPlane(FVector V, FVector PlaneNormal);

	/** The vector mirrored at the plane with that normal. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "MirrorByVector"))
	static FVector GetReflectionVector(FVector Direction, FVector SurfaceNormal);

	/** The rotation that turns the forward axis to point from Start to Target. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "FindLookAtRotation"))
	static FRotator FindLookAtRotation(const FVector& Start, const FVector& Target);

	/** The rotation that turns the forward axis to point along the vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Rotator"))
	static FRotator Conv_VectorToRotator(FVector InVec);

	/** X and Y. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "Vector2D"))
	static FVector2D Conv_VectorToVector2D(FVector InVector);

	/** X, Y and Z as red, green and blue; alpha is 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (ScriptMethod = "LinearColor"))
	static FLinearColor Conv_VectorToLinearColor(FVector InVec);

	/** (0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (ScriptConstant = "Zero", ScriptConstantHost = "/Script/CoreUObject.Vector2D"))
	static FVector2D Vector2D_Zero();

	/** (1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (ScriptConstant = "One", ScriptConstantHost = "/Script/CoreUObject.Vector2D"))
	static FVector2D Vector2D_One();

	/** Makes a vector of its two numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (NativeMakeFunc))
	static FVector2D MakeVector2D(double X, double Y);

	/** The two numbers of a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (NativeBreakFunc))
	static void BreakVector2D(FVector2D InVec, double& X, double& Y);

	/** Sets the two numbers. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector2D", meta = (ScriptMethod = "Set"))
	static void Set2D(UPARAM(ref) FVector2D& A, double X, double Y);

	/** A + B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Add", ScriptOperator = "+;+="))
	static FVector2D Add_Vector2DVector2D(FVector2D A, FVector2D B);

	/** A + B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "AddFloat", ScriptOperator = "+;+="))
	static FVector2D Add_Vector2DFloat(FVector2D A, double B);

	/** A - B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Subtract", ScriptOperator = "-;-="))
	static FVector2D Subtract_Vector2DVector2D(FVector2D A, FVector2D B);

	/** A - B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "SubtractFloat", ScriptOperator = "-;-="))
	static FVector2D Subtract_Vector2DFloat(FVector2D A, double B);

	/** A * B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Multiply", ScriptOperator = "*;*="))
	static FVector2D Multiply_Vector2DVector2D(FVector2D A, FVector2D B);

	/** A * B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "MultiplyFloat", ScriptOperator = "*;*="))
	static FVector2D Multiply_Vector2DFloat(FVector2D A, double B);

	/** A / B, number by number. Divided by zero a number is zero, with a warning. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Divide", ScriptOperator = "/;/="))
	static FVector2D Divide_Vector2DVector2D(FVector2D A, FVector2D B);

	/** A / B, the same B for each number. Zero, with a warning, where B is zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "DivideFloat", ScriptOperator = "/;/="))
	static FVector2D Divide_Vector2DFloat(FVector2D A, double B);

	/** The vector that points the other way. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Negated", ScriptOperator = "neg"))
	static FVector2D Negated2D(const FVector2D& A);

	/** Whether all numbers are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool EqualExactly_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Whether any number differs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqualExactly_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Whether no number differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "IsNearEqual"))
	static bool EqualEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance = 1.e-4f);

	/** Whether any number differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "IsNotNearEqual"))
	static bool NotEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance = 1.e-4f);

	/** The dot product. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Dot", ScriptOperator = "|"))
	static double DotProduct2D(FVector2D A, FVector2D B);

	/** The cross product. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Cross", ScriptOperator = "^"))
	static double CrossProduct2D(FVector2D A, FVector2D B);

	/** The length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Length"))
	static double VSize2D(FVector2D A);

	/** The square of the length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "LengthSquared"))
	static double VSize2DSquared(FVector2D A);

	/** Whether all numbers are zero within the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "IsNearlyZero"))
	static bool IsNearlyZero2D(const FVector2D& A, float Tolerance = 1.e-4f);

	/** Whether all numbers are zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "IsZero"))
	static bool IsZero2D(const FVector2D& A);

	/** The vector with length 1; zero if the square of its length is not above the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Normal"))
	static FVector2D NormalSafe2D(FVector2D A, float Tolerance = 1.e-8f);

	/** Gives the vector length 1; zero if it is too short for that. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector2D", meta = (ScriptMethod = "Normalize"))
	static void Normalize2D(UPARAM(ref) FVector2D& A, float Tolerance = 1.e-8f);

	/** How far two points are apart. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Distance"))
	static double Distance2D(FVector2D V1, FVector2D V2);

	/** The square of how far two points are apart. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "DistanceSquared"))
	static double DistanceSquared2D(FVector2D V1, FVector2D V2);

	/** The numbers without their signs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "GetAbs"))
	static FVector2D GetAbs2D(FVector2D A);

	/** The larger number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "GetMax"))
	static double GetMax2D(FVector2D A);

	/** The smaller number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "GetMin"))
	static double GetMin2D(FVector2D A);

	/** The vector turned by an angle in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "GetRotated"))
	static FVector2D GetRotated2D(FVector2D A, double AngleDeg);

	/** The vector in space with that Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "Vector"))
	static FVector Conv_Vector2DToVector(FVector2D InVector2D, double Z = 0.0);

	/** The numbers without their fractions. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (ScriptMethod = "IntPoint"))
	static FIntPoint Conv_Vector2DToIntPoint(FVector2D InVector2D);

	/** (0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (ScriptConstant = "Zero", ScriptConstantHost = "/Script/CoreUObject.IntPoint"))
	static FIntPoint IntPoint_Zero();

	/** (1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (ScriptConstant = "One", ScriptConstantHost = "/Script/CoreUObject.IntPoint"))
	static FIntPoint IntPoint_One();

	/** (0, -1) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (ScriptConstant = "Up", ScriptConstantHost = "/Script/CoreUObject.IntPoint"))
	static FIntPoint IntPoint_Up();

	/** (0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (ScriptConstant = "Down", ScriptConstantHost = "/Script/CoreUObject.IntPoint"))
	static FIntPoint IntPoint_Down();

	/** (-1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (ScriptConstant = "Left", ScriptConstantHost = "/Script/CoreUObject.IntPoint"))
	static FIntPoint IntPoint_Left();

	/** (1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (ScriptConstant = "Right", ScriptConstantHost = "/Script/CoreUObject.IntPoint"))
	static FIntPoint IntPoint_Right();

	/** A + B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "Add", ScriptOperator = "+;+="))
	static FIntPoint Add_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** A + B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "AddInt", ScriptOperator = "+;+="))
	static FIntPoint Add_IntPointInt(FIntPoint A, int32 B);

	/** A - B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "Subtract", ScriptOperator = "-;-="))
	static FIntPoint Subtract_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** A - B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "SubtractInt", ScriptOperator = "-;-="))
	static FIntPoint Subtract_IntPointInt(FIntPoint A, int32 B);

	/** A * B, number by number. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "Multiply", ScriptOperator = "*;*="))
	static FIntPoint Multiply_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** A * B, the same B for each number. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "MultiplyInt", ScriptOperator = "*;*="))
	static FIntPoint Multiply_IntPointInt(FIntPoint A, int32 B);

	/** A / B, number by number. Divided by zero a number is zero, with a warning. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "Divide", ScriptOperator = "/;/="))
	static FIntPoint Divide_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** A / B, the same B for each number. Zero, with a warning, where B is zero. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "DivideInt", ScriptOperator = "/;/="))
	static FIntPoint Divide_IntPointInt(FIntPoint A, int32 B);

	/** Whether both numbers are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool Equal_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** Whether any number differs. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqual_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** The point with numbers that may have fractions. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (ScriptMethod = "Vector2D"))
	static FVector2D Conv_IntPointToVector2D(FIntPoint InIntPoint);

	/** Makes a rotation of its angles in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (NativeMakeFunc))
	static FRotator MakeRotator(double Roll, double Pitch, double Yaw);

	/** The angles of a rotation in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (NativeBreakFunc))
	static void BreakRotator(FRotator InRot, double& Roll, double& Pitch, double& Yaw);

	/** Whether both turn alike within the tolerance, in degrees: 360 equals 0. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "IsNearEqual", ScriptOperator = "=="))
	static bool EqualEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance = 1.e-4f);

	/** Whether both turn differently by more than the tolerance, in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "IsNotNearEqual", ScriptOperator = "!="))
	static bool NotEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance = 1.e-4f);

	/** Each angle B times as large. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "Scale", ScriptOperator = "*;*="))
	static FRotator Multiply_RotatorFloat(FRotator A, double B);

	/** Each angle B times as large. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "ScaleInteger"))
	static FRotator Multiply_RotatorInt(FRotator A, int32 B);

	/** The rotation that turns by A, then by B. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "Combine", ScriptOperator = "+;+="))
	static FRotator ComposeRotators(FRotator A, FRotator B);

	/** What is to be added to the angles of B to get A, each the short way round. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "Delta", ScriptOperator = "-;-="))
	static FRotator NormalizedDeltaRotator(FRotator A, FRotator B);

	/** The rotation that turns back. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "Inversed", ScriptOperator = "neg"))
	static FRotator NegateRotator(FRotator A);

	/**
	 * From A, at Alpha 0, to B, at Alpha 1, angle by angle.
	 *
	 * @param bShortestPath  Whether each angle goes the short way round.
	 */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "Lerp"))
	static FRotator RLerp(FRotator A, FRotator B, double Alpha, bool bShortestPath);

	/** Where the rotation turns the forward axis to. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "GetForwardVector"))
	static FVector GetForwardVector(FRotator InRot);

	/** Where the rotation turns the right axis to. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "GetRightVector"))
	static FVector GetRightVector(FRotator InRot);

	/** Where the rotation turns the up axis to. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "GetUpVector"))
	static FVector GetUpVector(FRotator InRot);

	/** The direction of the rotation: where it turns the forward axis to. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (ScriptMethod = "Vector"))
	static FVector Conv_RotatorToVector(FRotator InRot);

	/** (1, 1, 1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "White", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_White();

	/** (0.5, 0.5, 0.5, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Gray", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Gray();

	/** (0, 0, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Black", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Black();

	/** (1, 0, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Red", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Red();

	/** (0, 1, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Green", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Green();

	/** (0, 0, 1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Blue", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Blue();

	/** (1, 1, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Yellow", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Yellow();

	/** (0, 0, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Color",
		meta = (ScriptConstant = "Transparent", ScriptConstantHost = "/Script/CoreUObject.LinearColor"))
	static FLinearColor LinearColor_Transparent();

	/** Makes a colour of its channels, 0 to 1 where it is displayed. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (NativeMakeFunc))
	static FLinearColor MakeColor(float R, float G, float B, float A = 1.0f);

	/** The channels of a colour. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (NativeBreakFunc))
	static void BreakColor(FLinearColor InColor, float& R, float& G, float& B, float& A);

	/** Sets the channels. */
	UFUNCTION(BlueprintCallable, Category = "Math|Color", meta = (ScriptMethod = "Set"))
	static void LinearColor_Set(UPARAM(ref) FLinearColor& InOutColor, FLinearColor InColor);

	/** A + B, channel by channel. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "Add", ScriptOperator = "+;+="))
	static FLinearColor Add_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** A - B, channel by channel. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "Subtract", ScriptOperator = "-;-="))
	static FLinearColor Subtract_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** A * B, channel by channel. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "Multiply", ScriptOperator = "*;*="))
	static FLinearColor Multiply_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** A / B, channel by channel. Divided by zero a channel is zero, with a warning. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "Divide", ScriptOperator = "/;/="))
	static FLinearColor Divide_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** A * B, alpha included. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "MultiplyFloat", ScriptOperator = "*;*="))
	static FLinearColor Multiply_LinearColorFloat(FLinearColor A, float B);

	/** Whether all channels are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool EqualEqual_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** Whether any channel differs. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqual_LinearColorLinearColor(FLinearColor A, FLinearColor B);

	/** Whether no channel differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "IsNearEqual"))
	static bool LinearColor_IsNearEqual(FLinearColor A, FLinearColor B, float Tolerance = 1.e-4f);

	/** From A, at Alpha 0, to B, at Alpha 1, channel by channel. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "LerpTo"))
	static FLinearColor LinearColorLerp(FLinearColor A, FLinearColor B, float Alpha);

	/** The colour moved towards grey of the same luminance; 1 is grey. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "Desaturated"))
	static FLinearColor LinearColor_Desaturated(FLinearColor InColor, float InDesaturation);

	/** The perceived brightness, 0 to 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "GetLuminance"))
	static float LinearColor_GetLuminance(FLinearColor InColor);

	/** The colour with another alpha. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "ToNewOpacity"))
	static FLinearColor LinearColor_ToNewOpacity(FLinearColor InColor, float InOpacity);

	/** Makes a colour of hue in degrees, 0 to 360, saturation and value, 0 to 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Color")
	static FLinearColor HSVToRGB(float H, float S, float V, float A = 1.0f);

	/** Hue in degrees, 0 to 360, saturation, value and alpha of a colour. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "RGBIntoHSVComponents"))
	static void RGBToHSV(FLinearColor InColor, float& H, float& S, float& V, float& A);

	/**
	 * The colour in eight bits a channel.
	 *
	 * @param InUseSRGB  Whether they are encoded in sRGB.
	 */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "ToColor"))
	static FColor Conv_LinearColorToColor(FLinearColor InLinearColor, bool InUseSRGB = true);

	/** Decodes a colour from sRGB. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "LinearColor"))
	static FLinearColor Conv_ColorToLinearColor(FColor InColor);

	/** Red, green and blue as X, Y and Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (ScriptMethod = "ToRGBVector"))
	static FVector Conv_LinearColorToVector(FLinearColor InLinearColor);

	/** Makes a date and time of day. A date that the calendar does not have, in the years 1 to 9999, is an error. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (NativeMakeFunc))
	static FDateTime MakeDateTime(
		int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	/** The parts of a date and time of day. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (NativeBreakFunc))
	static void BreakDateTime(FDateTime InDateTime, int32& Year, int32& Month, int32& Day, int32& Hour, int32& Minute,
		int32& Second, int32& Millisecond);

	/** The later time. One beyond the years 1 to 9999 is an error. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "Add", ScriptOperator = "+;+="))
	static FDateTime Add_DateTimeTimespan(FDateTime A, FTimespan B);

	/** The earlier time. One beyond the years 1 to 9999 is an error. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "Subtract", ScriptOperator = "-;-="))
	static FDateTime Subtract_DateTimeTimespan(FDateTime A, FTimespan B);

	/** The time from B to A. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "SubtractDateTime", ScriptOperator = "-"))
	static FTimespan Subtract_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Whether both are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool EqualEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Whether both differ. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Whether A is later than B. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "Greater", ScriptOperator = ">"))
	static bool Greater_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Whether A is later than B or the same. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GreaterEqual", ScriptOperator = ">="))
	static bool GreaterEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Whether A is earlier than B. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "Less", ScriptOperator = "<"))
	static bool Less_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Whether A is earlier than B or the same. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "LessEqual", ScriptOperator = "<="))
	static bool LessEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** The date at midnight. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetDate"))
	static FDateTime GetDate(FDateTime A);

	/** The time since midnight. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetTimeOfDay"))
	static FTimespan GetTimeOfDay(FDateTime A);

	/** The year, 1 to 9999. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetYear"))
	static int32 GetYear(FDateTime A);

	/** The month, 1 to 12. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetMonth"))
	static int32 GetMonth(FDateTime A);

	/** The day of the month, 1 to 31. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetDay"))
	static int32 GetDay(FDateTime A);

	/** The day of the year, 1 to 366. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetDayOfYear"))
	static int32 GetDayOfYear(FDateTime A);

	/** The hour, 0 to 23. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetHour"))
	static int32 GetHour(FDateTime A);

	/** The hour of a clock of twelve hours, 1 to 12. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetHour12"))
	static int32 GetHour12(FDateTime A);

	/** The minute, 0 to 59. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetMinute"))
	static int32 GetMinute(FDateTime A);

	/** The second, 0 to 59. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetSecond"))
	static int32 GetSecond(FDateTime A);

	/** The millisecond, 0 to 999. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "GetMillisecond"))
	static int32 GetMillisecond(FDateTime A);

	/** Whether it is before noon. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "IsMorning"))
	static bool IsMorning(FDateTime A);

	/** Whether it is noon or later. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptMethod = "IsAfternoon"))
	static bool IsAfternoon(FDateTime A);

	/** Whether the year has 366 days. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static bool IsLeapYear(int32 Year);

	/** The number of days of a month, 1 to 12; another month is an error. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static int32 DaysInMonth(int32 Year, int32 Month);

	/** The number of days of a year. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static int32 DaysInYear(int32 Year);

	/** The earliest time, at the beginning of year 1. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptConstant = "MinValue"))
	static FDateTime DateTimeMinValue();

	/** The latest time, at the end of year 9999. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (ScriptConstant = "MaxValue"))
	static FDateTime DateTimeMaxValue();

	/** The local time. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime Now();

	/** Today's date by local time, at midnight. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime Today();

	/** The time in UTC. */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime UtcNow();

	/** Makes a length of time. What the range of about 29,000 years cannot hold becomes its end. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (NativeMakeFunc))
	static FTimespan MakeTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 Milliseconds);

	/** The parts of a length of time, all negative if it is. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (NativeBreakFunc))
	static void BreakTimespan(
		FTimespan InTimespan, int32& Days, int32& Hours, int32& Minutes, int32& Seconds, int32& Milliseconds);

	/** A + B, within the range. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "Add", ScriptOperator = "+;+="))
	static FTimespan Add_TimespanTimespan(FTimespan A, FTimespan B);

	/** A - B, within the range. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "Subtract", ScriptOperator = "-;-="))
	static FTimespan Subtract_TimespanTimespan(FTimespan A, FTimespan B);

	/** A * Scalar, within the range. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "MultiplyFloat", ScriptOperator = "*;*="))
	static FTimespan Multiply_TimespanFloat(FTimespan A, double Scalar);

	/** A / Scalar, within the range. Zero, with a warning, where the scalar is zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "DivideFloat", ScriptOperator = "/;/="))
	static FTimespan Divide_TimespanFloat(FTimespan A, double Scalar);

	/** Whether both are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "Equals", ScriptOperator = "=="))
	static bool EqualEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Whether both differ. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "NotEqual", ScriptOperator = "!="))
	static bool NotEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Whether A is longer than B. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "Greater", ScriptOperator = ">"))
	static bool Greater_TimespanTimespan(FTimespan A, FTimespan B);

	/** Whether A is longer than B or the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GreaterEqual", ScriptOperator = ">="))
	static bool GreaterEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Whether A is shorter than B. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "Less", ScriptOperator = "<"))
	static bool Less_TimespanTimespan(FTimespan A, FTimespan B);

	/** Whether A is shorter than B or the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "LessEqual", ScriptOperator = "<="))
	static bool LessEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** The whole days. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetDays"))
	static int32 GetDays(FTimespan A);

	/** The hours of the clock's reading, to 23. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetHours"))
	static int32 GetHours(FTimespan A);

	/** The minutes of the clock's reading, to 59. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetMinutes"))
	static int32 GetMinutes(FTimespan A);

	/** The seconds of the clock's reading, to 59. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetSeconds"))
	static int32 GetSeconds(FTimespan A);

	/** The milliseconds of the clock's reading, to 999. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetMilliseconds"))
	static int32 GetMilliseconds(FTimespan A);

	/** The length without its sign. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetDuration"))
	static FTimespan GetDuration(FTimespan A);

	/** The whole length in days. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetTotalDays"))
	static double GetTotalDays(FTimespan A);

	/** The whole length in hours. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetTotalHours"))
	static double GetTotalHours(FTimespan A);

	/** The whole length in minutes. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetTotalMinutes"))
	static double GetTotalMinutes(FTimespan A);

	/** The whole length in seconds. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetTotalSeconds"))
	static double GetTotalSeconds(FTimespan A);

	/** The whole length in milliseconds. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "GetTotalMilliseconds"))
	static double GetTotalMilliseconds(FTimespan A);

	/** Makes a length of time of days. What the range cannot hold becomes its end. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan FromDays(double Days);

	/** Makes a length of time of hours. What the range cannot hold becomes its end. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan FromHours(double Hours);

	/** Makes a length of time of minutes. What the range cannot hold becomes its end. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan FromMinutes(double Minutes);

	/** Makes a length of time of seconds. What the range cannot hold becomes its end. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan FromSeconds(double Seconds);

	/** Makes a length of time of milliseconds. What the range cannot hold becomes its end. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan")
	static FTimespan FromMilliseconds(double Milliseconds);

	/** A / B as a number; 0, with a warning, where B is zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptMethod = "Ratio"))
	static double TimespanRatio(FTimespan A, FTimespan B);

	/** The longest negative time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptConstant = "MinValue"))
	static FTimespan TimespanMinValue();

	/** The longest time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptConstant = "MaxValue"))
	static FTimespan TimespanMaxValue();

	/** No time. */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (ScriptConstant = "ZeroValue"))
	static FTimespan TimespanZeroValue();
};
