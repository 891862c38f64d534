#include "Kismet/KismetMathLibrary.h"
#include "KismetMath.h"

FLinearColor UKismetMathLibrary::LinearColor_White()
{
	return FLinearColor::White;
}

FLinearColor UKismetMathLibrary::LinearColor_Gray()
{
	return FLinearColor::Gray;
}

FLinearColor UKismetMathLibrary::LinearColor_Black()
{
	return FLinearColor::Black;
}

FLinearColor UKismetMathLibrary::LinearColor_Red()
{
	return FLinearColor::Red;
}

FLinearColor UKismetMathLibrary::LinearColor_Green()
{
	return FLinearColor::Green;
}

FLinearColor UKismetMathLibrary::LinearColor_Blue()
{
	return FLinearColor::Blue;
}

FLinearColor UKismetMathLibrary::LinearColor_Yellow()
{
	return FLinearColor::Yellow;
}

FLinearColor UKismetMathLibrary::LinearColor_Transparent()
{
	return FLinearColor::Transparent;
}

FLinearColor UKismetMathLibrary::MakeColor(float R, float G, float B, float A)
{
	return FLinearColor(R, G, B, A);
}

void UKismetMathLibrary::BreakColor(FLinearColor InColor, float& R, float& G, float& B, float& A)
{
	R = InColor.R;
	G = InColor.G;
	B = InColor.B;
	A = InColor.A;
}

void UKismetMathLibrary::LinearColor_Set(FLinearColor& InOutColor, FLinearColor InColor)
{
	InOutColor = InColor;
}

FLinearColor UKismetMathLibrary::Add_LinearColorLinearColor(FLinearColor A, FLinearColor B)
{
	return A + B;
}

FLinearColor UKismetMathLibrary::Subtract_LinearColorLinearColor(FLinearColor A, FLinearColor B)
{
	return A - B;
}

FLinearColor UKismetMathLibrary::Multiply_LinearColorLinearColor(FLinearColor A, FLinearColor B)
{
	return A * B;
}

FLinearColor UKismetMathLibrary::Divide_LinearColorLinearColor(FLinearColor A, FLinearColor B)
{
	const TCHAR* const Name = TEXT("Divide_LinearColorLinearColor");
	return FLinearColor(KismetMath::Divide(A.R, B.R, Name), KismetMath::Divide(A.G, B.G, Name),
		KismetMath::Divide(A.B, B.B, Name), KismetMath::Divide(A.A, B.A, Name));
}

FLinearColor UKismetMathLibrary::Multiply_LinearColorFloat(FLinearColor A, float B)
{
	return A * B;
}

bool UKismetMathLibrary::EqualEqual_LinearColorLinearColor(FLinearColor A, FLinearColor B)
{
	return A == B;
}

bool UKismetMathLibrary::NotEqual_LinearColorLinearColor(FLinearColor A, FLinearColor B)
{
	return A != B;
}

bool UKismetMathLibrary::LinearColor_IsNearEqual(FLinearColor A, FLinearColor B, float Tolerance)
{
	return A.Equals(B, Tolerance);
}

FLinearColor UKismetMathLibrary::LinearColorLerp(FLinearColor A, FLinearColor B, float Alpha)
{
	return A + (B - A) * Alpha;
}

FLinearColor UKismetMathLibrary::LinearColor_Desaturated(FLinearColor InColor, float InDesaturation)
{
	return InColor.Desaturate(InDesaturation);
}

float UKismetMathLibrary::LinearColor_GetLuminance(FLinearColor InColor)
{
	return InColor.GetLuminance();
}

FLinearColor UKismetMathLibrary::LinearColor_ToNewOpacity(FLinearColor InColor, float InOpacity)
{
	return InColor.CopyWithNewOpacity(InOpacity);
}

FLinearColor UKismetMathLibrary::HSVToRGB(float H, float S, float V, float A)
{
	return FLinearColor(H, S, V, A).HSVToLinearRGB();
}

void UKismetMathLibrary::RGBToHSV(FLinearColor InColor, float& H, float& S, float& V, float& A)
{
	BreakColor(InColor.LinearRGBToHSV(), H, S, V, A);
}

FColor UKismetMathLibrary::Conv_LinearColorToColor(FLinearColor InLinearColor, bool InUseSRGB)
{
	return InLinearColor.ToFColor(InUseSRGB);
}

FLinearColor UKismetMathLibrary::Conv_ColorToLinearColor(FColor InColor)
{
	return FLinearColor(InColor);
}

FVector UKismetMathLibrary::Conv_LinearColorToVector(FLinearColor InLinearColor)
{
	return FVector(double(InLinearColor.R), double(InLinearColor.G), double(InLinearColor.B));
}
