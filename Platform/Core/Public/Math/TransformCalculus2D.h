#pragma once

#include "CoreTypes.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"

/**
 * Transforms of the plane. They are applied by free functions that are overloaded for each kind: Concatenate(A, B) applies
 * A first, then B; Inverse(A) undoes A; TransformPoint and TransformVector apply A, the latter without its translation. A
 * plain number is a uniform scale, a FVector2D a translation.
 */

inline float Concatenate(float Left, float Right)
{
	return Left * Right;
}

inline float Inverse(float Scale)
{
	return 1.0f / Scale;
}

inline FVector2D TransformPoint(float Scale, const FVector2D& Point)
{
	return Point * Scale;
}

inline FVector2D TransformVector(float Scale, const FVector2D& Vector)
{
	return Vector * Scale;
}

inline FVector2D Concatenate(const FVector2D& Left, const FVector2D& Right)
{
	return Left + Right;
}

inline FVector2D Inverse(const FVector2D& Translation)
{
	return -Translation;
}

inline FVector2D TransformPoint(const FVector2D& Translation, const FVector2D& Point)
{
	return Translation + Point;
}

inline FVector2D TransformVector(const FVector2D&, const FVector2D& Vector)
{
	return Vector;
}

/** A scale by axis. */
class FScale2D
{
public:
	FScale2D() = default;

	explicit FScale2D(float InScale)
		: Scale(InScale, InScale)
	{
	}

	explicit FScale2D(float ScaleX, float ScaleY)
		: Scale(ScaleX, ScaleY)
	{
	}

	explicit FScale2D(const FVector2D& InScale)
		: Scale(InScale)
	{
	}

	const FVector2D& GetVector() const { return Scale; }
	FVector2D TransformPoint(const FVector2D& Point) const { return Point * Scale; }
	FVector2D TransformVector(const FVector2D& Vector) const { return TransformPoint(Vector); }
	FScale2D Concatenate(const FScale2D& Right) const { return FScale2D(Scale * Right.Scale); }
	FScale2D Inverse() const { return FScale2D(FVector2D(1.0, 1.0) / Scale); }

	bool operator==(const FScale2D& Other) const { return Scale == Other.Scale; }
	bool operator!=(const FScale2D& Other) const { return Scale != Other.Scale; }

private:
	FVector2D Scale{1.0, 1.0};
};

/** A rotation, clockwise on a screen whose Y axis points down. */
class FQuat2D
{
public:
	FQuat2D() = default;

	explicit FQuat2D(float RotationRadians)
		: Rotation(FMath::Cos(double(RotationRadians)), FMath::Sin(double(RotationRadians)))
	{
	}

	/** Cosine and sine of the angle. */
	const FVector2D& GetVector() const { return Rotation; }

private:
	FVector2D Rotation{1.0, 0.0};
};

/** A linear transform: scale, rotation, shear. Points are row vectors, multiplied from the left. */
class FMatrix2x2
{
public:
	FMatrix2x2() = default;

	FMatrix2x2(double M00, double M01, double M10, double M11)
		: RowX(M00, M01)
		, RowY(M10, M11)
	{
	}

	explicit FMatrix2x2(float UniformScale)
		: FMatrix2x2(UniformScale, 0.0, 0.0, UniformScale)
	{
	}

	explicit FMatrix2x2(const FScale2D& Scale)
		: FMatrix2x2(Scale.GetVector().X, 0.0, 0.0, Scale.GetVector().Y)
	{
	}

	explicit FMatrix2x2(const FQuat2D& Rotation)
		: FMatrix2x2(Rotation.GetVector().X, Rotation.GetVector().Y, -Rotation.GetVector().Y, Rotation.GetVector().X)
	{
	}

	FVector2D TransformPoint(const FVector2D& Point) const { return RowX * Point.X + RowY * Point.Y; }
	FVector2D TransformVector(const FVector2D& Vector) const { return TransformPoint(Vector); }

	FMatrix2x2 Concatenate(const FMatrix2x2& Right) const
	{
		const FVector2D X = Right.TransformPoint(RowX);
		const FVector2D Y = Right.TransformPoint(RowY);
		return FMatrix2x2(X.X, X.Y, Y.X, Y.Y);
	}

	double Determinant() const { return RowX ^ RowY; }

	/** A matrix that has no inverse gives one of zeros. */
	FMatrix2x2 Inverse() const
	{
		const double Det = Determinant();
		const double InverseDet = Det == 0.0 ? 0.0 : 1.0 / Det;
		return FMatrix2x2(RowY.Y * InverseDet, -RowX.Y * InverseDet, -RowY.X * InverseDet, RowX.X * InverseDet);
	}

	void GetMatrix(float& M00, float& M01, float& M10, float& M11) const
	{
		M00 = float(RowX.X);
		M01 = float(RowX.Y);
		M10 = float(RowY.X);
		M11 = float(RowY.Y);
	}

	/** The lengths that the unit axes get. */
	FScale2D GetScale() const { return FScale2D(FVector2D(RowX.Size(), RowY.Size())); }

	bool IsIdentity() const { return *this == FMatrix2x2(); }
	bool operator==(const FMatrix2x2& Other) const { return RowX == Other.RowX && RowY == Other.RowY; }
	bool operator!=(const FMatrix2x2& Other) const { return !(*this == Other); }

private:
	FVector2D RowX{1.0, 0.0};
	FVector2D RowY{0.0, 1.0};
};

/** A linear transform, followed by a translation. */
class FTransform2D
{
public:
	FTransform2D() = default;

	explicit FTransform2D(const FVector2D& InTranslation)
		: Translation(InTranslation)
	{
	}

	explicit FTransform2D(float UniformScale, const FVector2D& InTranslation = FVector2D::ZeroVector)
		: Matrix(UniformScale)
		, Translation(InTranslation)
	{
	}

	explicit FTransform2D(const FScale2D& Scale, const FVector2D& InTranslation = FVector2D::ZeroVector)
		: Matrix(Scale)
		, Translation(InTranslation)
	{
	}

	explicit FTransform2D(const FQuat2D& Rotation, const FVector2D& InTranslation = FVector2D::ZeroVector)
		: Matrix(Rotation)
		, Translation(InTranslation)
	{
	}

	explicit FTransform2D(const FMatrix2x2& InMatrix, const FVector2D& InTranslation = FVector2D::ZeroVector)
		: Matrix(InMatrix)
		, Translation(InTranslation)
	{
	}

	const FMatrix2x2& GetMatrix() const { return Matrix; }
	const FVector2D& GetTranslation() const { return Translation; }
	void SetTranslation(const FVector2D& InTranslation) { Translation = InTranslation; }

	FVector2D TransformPoint(const FVector2D& Point) const { return Matrix.TransformPoint(Point) + Translation; }
	FVector2D TransformVector(const FVector2D& Vector) const { return Matrix.TransformVector(Vector); }

	FTransform2D Concatenate(const FTransform2D& Right) const
	{
		return FTransform2D(Matrix.Concatenate(Right.Matrix), Right.TransformPoint(Translation));
	}

	FTransform2D Inverse() const
	{
		const FMatrix2x2 InverseMatrix = Matrix.Inverse();
		return FTransform2D(InverseMatrix, -InverseMatrix.TransformPoint(Translation));
	}

	bool IsIdentity() const { return Matrix.IsIdentity() && Translation.IsZero(); }
	bool operator==(const FTransform2D& Other) const { return Matrix == Other.Matrix && Translation == Other.Translation; }
	bool operator!=(const FTransform2D& Other) const { return !(*this == Other); }

private:
	FMatrix2x2 Matrix;
	FVector2D Translation = FVector2D::ZeroVector;
};

/** Of two of a kind, for the kinds that know it themselves. */
template <typename TransformType>
auto Concatenate(const TransformType& Left, const TransformType& Right) -> decltype(Left.Concatenate(Right))
{
	return Left.Concatenate(Right);
}

template <typename TransformType>
auto Inverse(const TransformType& Transform) -> decltype(Transform.Inverse())
{
	return Transform.Inverse();
}

template <typename TransformType>
auto TransformPoint(const TransformType& Transform, const FVector2D& Point) -> decltype(Transform.TransformPoint(Point))
{
	return Transform.TransformPoint(Point);
}

template <typename TransformType>
auto TransformVector(const TransformType& Transform, const FVector2D& Vector) -> decltype(Transform.TransformVector(Vector))
{
	return Transform.TransformVector(Vector);
}

inline FTransform2D Concatenate(const FScale2D& Scale, const FVector2D& Translation)
{
	return FTransform2D(Scale, Translation);
}

inline FTransform2D Concatenate(const FMatrix2x2& Matrix, const FVector2D& Translation)
{
	return FTransform2D(Matrix, Translation);
}

inline FTransform2D Concatenate(const FVector2D& Translation, const FTransform2D& Right)
{
	return FTransform2D(Translation).Concatenate(Right);
}
