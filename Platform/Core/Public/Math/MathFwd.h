#pragma once

#include "CoreTypes.h"

namespace UE::Math
{
template <typename T>
struct TVector2;
template <typename T>
struct TVector;
template <typename T>
struct TRotator;
template <typename T>
struct TBox2;
}

using FVector2D = UE::Math::TVector2<double>;
using FVector2f = UE::Math::TVector2<float>;
using FVector = UE::Math::TVector<double>;
using FVector3f = UE::Math::TVector<float>;
using FRotator = UE::Math::TRotator<double>;
using FBox2D = UE::Math::TBox2<double>;
using FBox2f = UE::Math::TBox2<float>;

struct FIntPoint;
struct FColor;
struct FLinearColor;
