#include "UObject/DisplayNames.h"

#include "Misc/Char.h"

FString NameToDisplayString(const FString& Name, bool bIsBool)
{
	const int32 Begin = bIsBool && Name.Len() > 1 && Name[0] == u'b' && FChar::IsUpper(Name[1]) ? 1 : 0;
	FString Text;
	for (int32 Index = Begin; Index < Name.Len(); ++Index)
	{
		const TCHAR Char = Name[Index];
		if (Char == u'_')
		{
			Text += u' ';
			continue;
		}
		if (Index == Begin)
		{
			Text += FChar::ToUpper(Char);
			continue;
		}
		const TCHAR Before = Name[Index - 1];
		const bool bAfterLower = FChar::IsUpper(Char) && FChar::IsLower(Before);
		const bool bBeforeLower =
			FChar::IsUpper(Char) && FChar::IsUpper(Before) && Index + 1 < Name.Len() && FChar::IsLower(Name[Index + 1]);
		const bool bFirstDigit = FChar::IsDigit(Char) && FChar::IsLower(Before);
		if (bAfterLower || bBeforeLower || bFirstDigit)
		{
			Text += u' ';
		}
		Text += Char;
	}
	return Text;
}

FText DisplayNameOf(const FFieldMetaData& MetaData, const FString& Name, bool bIsBool)
{
	const FString* const Given = MetaData.FindMetaData(TEXT("DisplayName"));
	return FText::FromString(Given ? *Given : NameToDisplayString(Name, bIsBool));
}

FText ToolTipOf(const FFieldMetaData& MetaData, const FText& DisplayName, bool bShort)
{
	const FString* Given = bShort ? MetaData.FindMetaData(TEXT("ShortTooltip")) : nullptr;
	Given = Given ? Given : MetaData.FindMetaData(TEXT("ToolTip"));
	return Given ? FText::FromString(*Given) : DisplayName;
}
