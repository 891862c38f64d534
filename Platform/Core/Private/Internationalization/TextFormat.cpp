// FText::Format.

#include "Internationalization/Text.h"

namespace
{
/** @param FindArgument  From the text between two braces to its argument, or null. */
template <typename FindArgumentType>
FText FormatPattern(const FText& PatternText, const FindArgumentType& FindArgument)
{
	const FString& Pattern = PatternText.ToString();
	FString Result;
	for (int32 Index = 0; Index < Pattern.Len(); ++Index)
	{
		const TCHAR Char = Pattern[Index];
		const TCHAR Next = Index + 1 < Pattern.Len() ? Pattern[Index + 1] : 0;
		if (Char == u'`' && (Next == u'{' || Next == u'}' || Next == u'`'))
		{
			Result += Next;
			++Index;
			continue;
		}
		const int32 End =
			Char == u'{' ? Pattern.Find(TEXT("}"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Index) : INDEX_NONE;
		const FFormatArgumentValue* const Argument =
			End != INDEX_NONE ? FindArgument(Pattern.Mid(Index + 1, End - Index - 1).TrimStartAndEnd()) : nullptr;
		if (Argument)
		{
			Result += Argument->ToFormattedText().ToString();
			Index = End;
		}
		else
		{
			Result += Char;
		}
	}
	return FText::FromString(MoveTemp(Result));
}
}

FText FText::Format(const FText& Pattern, const FFormatNamedArguments& Arguments)
{
	return FormatPattern(Pattern, [&Arguments](const FString& Name) { return Arguments.Find(Name); });
}

FText FText::Format(const FText& Pattern, const FFormatOrderedArguments& Arguments)
{
	return FormatPattern(Pattern,
		[&Arguments](const FString& Name) -> const FFormatArgumentValue*
		{
			int32 Index = 0;
			for (const TCHAR Char : Name)
			{
				if (!FChar::IsDigit(Char) || Index >= Arguments.Num())
				{
					return nullptr;
				}
				Index = Index * 10 + FChar::ConvertCharDigitToInt(Char);
			}
			return !Name.IsEmpty() && Arguments.IsValidIndex(Index) ? &Arguments[Index] : nullptr;
		});
}
