#include "Kismet/KismetGuidLibrary.h"

bool UKismetGuidLibrary::EqualEqual_GuidGuid(const FGuid& A, const FGuid& B)
{
	return A == B;
}

bool UKismetGuidLibrary::NotEqual_GuidGuid(const FGuid& A, const FGuid& B)
{
	return A != B;
}

bool UKismetGuidLibrary::IsValid_Guid(const FGuid& InGuid)
{
	return InGuid.IsValid();
}

void UKismetGuidLibrary::Invalidate_Guid(FGuid& InGuid)
{
	InGuid.Invalidate();
}

FGuid UKismetGuidLibrary::NewGuid()
{
	return FGuid::NewGuid();
}

FString UKismetGuidLibrary::Conv_GuidToString(const FGuid& InGuid)
{
	return InGuid.ToString();
}

void UKismetGuidLibrary::Parse_StringToGuid(const FString& GuidString, FGuid& OutGuid, bool& bSuccess)
{
	OutGuid.Invalidate();
	bSuccess = FGuid::Parse(GuidString, OutGuid);
}
