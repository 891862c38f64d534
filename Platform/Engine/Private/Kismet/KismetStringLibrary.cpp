#include "Kismet/KismetStringLibrary.h"

FString UKismetStringLibrary::Conv_VectorToString(FVector InVec)
{
	return InVec.ToString();
}

FString UKismetStringLibrary::Conv_Vector2dToString(FVector2D InVec)
{
	return InVec.ToString();
}

FString UKismetStringLibrary::Conv_IntPointToString(FIntPoint InIntPoint)
{
	return InIntPoint.ToString();
}

FString UKismetStringLibrary::Conv_RotatorToString(FRotator InRot)
{
	return InRot.ToString();
}

FString UKismetStringLibrary::Conv_ColorToString(FLinearColor InColor)
{
	return InColor.ToString();
}

FString UKismetStringLibrary::Conv_DateTimeToString(FDateTime InDateTime)
{
	return InDateTime.ToString();
}

FString UKismetStringLibrary::Conv_TimespanToString(FTimespan InTimespan)
{
	return InTimespan.ToString();
}
