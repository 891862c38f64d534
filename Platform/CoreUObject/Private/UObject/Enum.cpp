#include "UObject/Class.h"

#include "UObject/DisplayNames.h"

namespace
{
FString ShortName(const FString& FullName)
{
	int32 Colons = FullName.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Colons == INDEX_NONE ? FullName : FullName.RightChop(Colons + 2);
}
}

bool UEnum::SetEnums(TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, bool bAddMaxKeyIfMissing)
{
	Names = InNames;
	CppForm = InCppForm;
	if (bAddMaxKeyIfMissing && !ContainsExistingMax())
	{
		const FName MaxName(*GenerateFullEnumName(*(GetName() + TEXT("_MAX"))));
		Names.Add(TPair<FName, int64>(MaxName, GetMaxEnumValue() + 1));
	}
	return true;
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName();
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

FString UEnum::GetNameStringByIndex(int32 InIndex) const
{
	return Names.IsValidIndex(InIndex) ? ShortName(Names[InIndex].Key.ToString()) : FString();
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetDisplayNameTextByIndex(int32 InIndex) const
{
	if (HasMetaData(TEXT("DisplayName"), InIndex))
	{
		return FText::FromString(GetMetaData(TEXT("DisplayName"), InIndex));
	}
	return FText::FromString(NameToDisplayString(GetNameStringByIndex(InIndex), false));
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetToolTipTextByIndex(int32 InIndex) const
{
	return HasMetaData(TEXT("ToolTip"), InIndex) ? FText::FromString(GetMetaData(TEXT("ToolTip"), InIndex))
												 : GetDisplayNameTextByIndex(InIndex);
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	return Names[Index].Value;
}

int64 UEnum::GetValueByName(FName InName) const
{
	const int32 Index = GetIndexByName(InName);
	return Index == INDEX_NONE ? INDEX_NONE : Names[Index].Value;
}

int64 UEnum::GetValueByNameString(const FString& SearchString) const
{
	return GetValueByName(FName(*SearchString));
}

int32 UEnum::GetIndexByName(FName InName) const
{
	const FName FullName(*GenerateFullEnumName(*InName.ToString()));
	return Names.IndexOfByPredicate([FullName](const TPair<FName, int64>& Entry) { return Entry.Key == FullName; });
}

int32 UEnum::GetIndexByNameString(const FString& SearchString) const
{
	return GetIndexByName(FName(*SearchString));
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	return Names.IndexOfByPredicate([InValue](const TPair<FName, int64>& Entry) { return Entry.Value == InValue; });
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 Max = Names.Num() ? Names[0].Value : 0;
	for (const TPair<FName, int64>& Entry : Names)
	{
		Max = Entry.Value > Max ? Entry.Value : Max;
	}
	return Max;
}

bool UEnum::ContainsExistingMax() const
{
	return IsValidEnumName(TEXT("MAX")) || IsValidEnumName(FName(*(GetName() + TEXT("_MAX"))));
}

FString UEnum::GenerateFullEnumName(const TCHAR* InEnumName) const
{
	const FString Name(InEnumName);
	return CppForm == ECppForm::Regular || Name.Contains(TEXT("::")) ? Name : GetName() + TEXT("::") + Name;
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return Names.IsValidIndex(NameIndex) && HasMetaData(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key));
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return GetMetaData(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key));
}

void UEnum::SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex)
{
	SetMetaData(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key), InValue);
}
