#include "CoreMinimal.h"

#include <gtest/gtest.h>

#include <limits>

TEST(String, OperatorsIgnoreCaseWhileEqualsAndCompareAreExact)
{
	const FString Text = TEXT("Grün");
	EXPECT_TRUE(Text == TEXT("GRÜN"));
	EXPECT_FALSE(Text != FString(TEXT("grün")));
	EXPECT_TRUE(FString(TEXT("a")) < FString(TEXT("B")));
	EXPECT_FALSE(Text.Equals(TEXT("GRÜN")));
	EXPECT_TRUE(Text.Equals(TEXT("GRÜN"), ESearchCase::IgnoreCase));
	EXPECT_GT(FString(TEXT("a")).Compare(TEXT("B")), 0);
	EXPECT_LT(FString(TEXT("a")).Compare(TEXT("B"), ESearchCase::IgnoreCase), 0);
	EXPECT_FALSE(FString(TEXT("[")) == FString(TEXT("{")));
	EXPECT_FALSE(FString(TEXT("@")) == FString(TEXT("`")));
}

TEST(String, HashesWithoutCase)
{
	EXPECT_EQ(GetTypeHash(FString(TEXT("Some/Längere/Path.JSON"))), GetTypeHash(FString(TEXT("sOME/lÄNGERE/pATH.json"))));
	EXPECT_EQ(GetTypeHash(FString(TEXT("abc"))), GetTypeHash(TEXT("ABC")));
	EXPECT_NE(GetTypeHash(FString(TEXT("abc"))), GetTypeHash(FString(TEXT("abd"))));
}

TEST(String, FindIgnoresCaseAndSearchesFromEitherEnd)
{
	const FString Text = TEXT("abcABCabc");
	EXPECT_EQ(Text.Find(TEXT("BC")), 1);
	EXPECT_EQ(Text.Find(TEXT("BC"), ESearchCase::CaseSensitive), 4);
	EXPECT_EQ(Text.Find(TEXT("bc"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 2), 4);
	EXPECT_EQ(Text.Find(TEXT("BC"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 7);
	EXPECT_EQ(Text.Find(TEXT("BC"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 7), 4);
	EXPECT_EQ(Text.Find(TEXT("x")), INDEX_NONE);
	EXPECT_TRUE(Text.Contains(TEXT("Cab")));
	EXPECT_FALSE(Text.Contains(TEXT("cAb"), ESearchCase::CaseSensitive));
}

TEST(String, FindBeginsWithAnyCharacter)
{
	const FString Text(TEXT("a\"b\"c\"Key\":\u212A"));
	EXPECT_EQ(Text.Find(TEXT("\"kEY\":")), 5);
	EXPECT_EQ(Text.Find(TEXT("\"kEY\":"), ESearchCase::CaseSensitive), INDEX_NONE);
	EXPECT_EQ(Text.Find(TEXT("\":")), 9);
	EXPECT_EQ(Text.Find(TEXT("\":\u212A?")), INDEX_NONE);
	EXPECT_EQ(Text.Find(TEXT("k"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 7), 11) << "the Kelvin sign is a capital k";
}

TEST(String, FindCharAndFindLastCharAreExact)
{
	int32 Index = 0;
	EXPECT_FALSE(FString(TEXT("abc")).FindChar(u'B', Index));
	EXPECT_EQ(Index, INDEX_NONE);
	EXPECT_TRUE(FString(TEXT("a.b.c")).FindLastChar(u'.', Index));
	EXPECT_EQ(Index, 3);
}

TEST(String, StartsAndEndsWithIgnoreCaseAndAnEmptyTextBeginsNothing)
{
	const FString Text = TEXT("Tool.Json");
	EXPECT_TRUE(Text.StartsWith(TEXT("TOOL")));
	EXPECT_TRUE(Text.EndsWith(TEXT(".json")));
	EXPECT_FALSE(Text.EndsWith(TEXT(".json"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(Text.StartsWith(TEXT("")));
	EXPECT_FALSE(FString(TEXT("a")).EndsWith(TEXT("aa")));
}

TEST(String, ReplaceIgnoresCaseAndDoesNotRescanWhatItInserted)
{
	EXPECT_TRUE(FString(TEXT("aAa")).Replace(TEXT("a"), TEXT("aa")).Equals(TEXT("aaaaaa")));
	EXPECT_TRUE(FString(TEXT("aAa")).Replace(TEXT("a"), TEXT("-"), ESearchCase::CaseSensitive).Equals(TEXT("-A-")));
	FString Text = TEXT("x");
	EXPECT_EQ(Text.ReplaceInline(TEXT(""), TEXT("y")), 0);
	EXPECT_EQ(Text, TEXT("x"));
	EXPECT_TRUE(FString(TEXT("a/B/a")).ReplaceCharInline(u'A', u'b').Equals(TEXT("b/B/b")));
}

TEST(String, SplitCutsAtTheFirstOrLastMatch)
{
	FString Left, Right;
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ(Left + TEXT("|") + Right, TEXT("a|b=c"));
	EXPECT_TRUE(Right.Split(TEXT("="), nullptr, &Right));
	EXPECT_EQ(Right, TEXT("c"));
	EXPECT_TRUE(FString(TEXT("aXbxc")).Split(TEXT("x"), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_EQ(Left, TEXT("aXb"));
	EXPECT_FALSE(FString(TEXT("abc")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ(Left, TEXT("aXb"));
}

TEST(String, PathAppendPutsOneSlashBetweenWhenNeitherSideHasOne)
{
	EXPECT_EQ(FString(TEXT("A")) / TEXT("B"), TEXT("A/B"));
	EXPECT_EQ(FString(TEXT("A/")) / TEXT("B"), TEXT("A/B"));
	EXPECT_EQ(FString(TEXT("A")) / TEXT("/B"), TEXT("A/B"));
	EXPECT_EQ(FString(TEXT("/")) / TEXT("A"), TEXT("/A"));
	EXPECT_EQ(FString(TEXT("A/")) / TEXT("/B"), TEXT("A//B"));
	EXPECT_EQ(FString(TEXT("A")) / FString(), TEXT("A/"));
	EXPECT_EQ(FString() / TEXT("A"), TEXT("A"));
}

TEST(String, SanitizeFloatTrimsZerosAndNeverPrintsMinusZero)
{
	EXPECT_EQ(FString::SanitizeFloat(2), TEXT("2.0"));
	EXPECT_EQ(FString::SanitizeFloat(1e-7), TEXT("0.0"));
	EXPECT_EQ(FString::SanitizeFloat(-0.0), TEXT("0.0"));
	EXPECT_EQ(FString::SanitizeFloat(-1e-9), TEXT("0.0"));
	EXPECT_EQ(FString::SanitizeFloat(-0.25), TEXT("-0.25"));
	EXPECT_EQ(FString::SanitizeFloat(100, 0), TEXT("100"));
	EXPECT_EQ(FString::SanitizeFloat(1.5, 3), TEXT("1.500"));
	EXPECT_EQ(FString::SanitizeFloat(1.0 / 3.0), TEXT("0.333333"));
	EXPECT_EQ(FString::SanitizeFloat(std::numeric_limits<double>::infinity()), TEXT("inf"));
	EXPECT_EQ(FString::SanitizeFloat(std::numeric_limits<double>::quiet_NaN()), TEXT("nan"));
}

TEST(String, PiecesLeaveOutWhatLiesOutside)
{
	const FString Text = TEXT("abcdef");
	EXPECT_EQ(Text.Left(2) + TEXT("|") + Text.Left(9) + TEXT("|") + Text.Left(-1), TEXT("ab|abcdef|"));
	EXPECT_EQ(Text.Right(2) + TEXT("|") + Text.Right(9), TEXT("ef|abcdef"));
	EXPECT_EQ(Text.LeftChop(2) + TEXT("|") + Text.LeftChop(9) + TEXT("|") + Text.RightChop(4), TEXT("abcd||ef"));
	EXPECT_EQ(Text.Mid(1, 2) + TEXT("|") + Text.Mid(4) + TEXT("|") + Text.Mid(9), TEXT("bc|ef|"));
	FString Changed = Text;
	Changed.LeftChopInline(1);
	Changed.RightChopInline(1);
	Changed.RemoveAt(1, 2);
	EXPECT_EQ(Changed, TEXT("be"));
}

TEST(String, RemoveFromStartAndEndSayWhetherTheyDid)
{
	FString Text = TEXT("/Game/A.uasset");
	EXPECT_TRUE(Text.RemoveFromStart(TEXT("/game/")));
	EXPECT_FALSE(Text.RemoveFromEnd(TEXT(".umap")));
	EXPECT_TRUE(Text.RemoveFromEnd(TEXT(".UASSET")));
	EXPECT_EQ(Text, TEXT("A"));
	EXPECT_TRUE(Text.RemoveFromEnd(TEXT("A")));
	EXPECT_TRUE(Text.IsEmpty());
	EXPECT_EQ(Text.Len(), 0);
}

TEST(String, ParseIntoArrayDropsEmptyPiecesByDefault)
{
	TArray<FString> Pieces;
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Pieces, TEXT(",")), 2);
	EXPECT_EQ(Pieces, TArray<FString>({TEXT("a"), TEXT("b")}));
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Pieces, TEXT(","), false), 5);
	EXPECT_EQ(FString().ParseIntoArray(Pieces, TEXT(","), false), 0);
	EXPECT_EQ(FString(TEXT(" a\tb;c ")).ParseIntoArrayWS(Pieces, TEXT(";")), 3);
}

TEST(String, ParseIntoArrayLinesKnowsAllLineEndsAndDropsEmptyLinesByDefault)
{
	TArray<FString> Lines;
	FString(TEXT("a\r\nb\rc\n\nd\n")).ParseIntoArrayLines(Lines);
	EXPECT_EQ(Lines, TArray<FString>({TEXT("a"), TEXT("b"), TEXT("c"), TEXT("d")}));
	FString(TEXT("a\r\n\nd\n")).ParseIntoArrayLines(Lines, false);
	EXPECT_EQ(Lines, TArray<FString>({TEXT("a"), FString(), TEXT("d"), FString()}));
}

TEST(String, JoinPutsTheSeparatorBetween)
{
	EXPECT_EQ(FString::Join(TArray<FString>({TEXT("a"), TEXT("b")}), TEXT(", ")), TEXT("a, b"));
	EXPECT_EQ(FString::Join(TSet<FString>({TEXT("a"), TEXT("b")}), TEXT("+")), TEXT("a+b"));
	EXPECT_EQ(FString::Join(TArray<FString>(), TEXT(", ")), TEXT(""));
}

TEST(String, TrimsBlanksAndQuotes)
{
	const FString Text = TEXT(" \t\u2003a b\n");
	EXPECT_EQ(Text.TrimStart(), TEXT("a b\n"));
	EXPECT_EQ(Text.TrimEnd(), TEXT(" \t\u2003a b"));
	EXPECT_EQ(Text.TrimStartAndEnd(), TEXT("a b"));
	EXPECT_TRUE(FString(TEXT(" \n ")).TrimStartAndEnd().IsEmpty());
	bool bRemoved = true;
	EXPECT_EQ(FString(TEXT("\"a\"")).TrimQuotes(&bRemoved), TEXT("a"));
	EXPECT_TRUE(bRemoved);
	EXPECT_EQ(FString(TEXT("a")).TrimQuotes(&bRemoved), TEXT("a"));
	EXPECT_FALSE(bRemoved);
}

TEST(String, EscapesExactlySixCharactersAndBack)
{
	const FString Plain = TEXT("\n\r\t'\"\\/\b");
	const FString Escaped = TEXT("\\n\\r\\t\\'\\\"\\\\/\b");
	EXPECT_TRUE(Plain.ReplaceCharWithEscapedChar().Equals(Escaped));
	EXPECT_TRUE(Escaped.ReplaceEscapedCharWithChar().Equals(Plain));
	EXPECT_TRUE(FString(TEXT("\\\\n")).ReplaceEscapedCharWithChar().Equals(TEXT("\\n")));
	const TArray<TCHAR> OnlyQuotes = {u'"'};
	EXPECT_TRUE(FString(TEXT("\"'\n")).ReplaceCharWithEscapedChar(&OnlyQuotes).Equals(TEXT("\\\"'\n")));
}

TEST(String, MatchesWildcardIgnoringCase)
{
	const FString Text = TEXT("Icon_Large.PNG");
	EXPECT_TRUE(Text.MatchesWildcard(TEXT("*.png")));
	EXPECT_TRUE(Text.MatchesWildcard(TEXT("icon_?arge*")));
	EXPECT_TRUE(Text.MatchesWildcard(TEXT("*_*g*")));
	EXPECT_FALSE(Text.MatchesWildcard(TEXT("*.pn")));
	EXPECT_FALSE(Text.MatchesWildcard(TEXT("*.png"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FString().MatchesWildcard(TEXT("*")));
	EXPECT_FALSE(FString().MatchesWildcard(TEXT("?")));
}

TEST(String, ChangesCaseBeyondAscii)
{
	EXPECT_TRUE(FString(TEXT("ÄbC-ß-Σ")).ToLower().Equals(TEXT("äbc-ß-σ")));
	EXPECT_TRUE(FString(TEXT("äbc-я")).ToUpper().Equals(TEXT("ÄBC-Я")));
}

TEST(String, AppendingItselfIsSafe)
{
	FString Text = TEXT("ab");
	Text += Text;
	Text += *Text;
	Text.Appendf(TEXT("<%s>"), *Text);
	EXPECT_EQ(Text, TEXT("abababab<abababab>"));
	Text.InsertAt(0, FString(TEXT("0")));
	EXPECT_EQ(Text.Left(3), TEXT("0ab"));
}

TEST(String, ConvertsTabsToTheNextColumn)
{
	EXPECT_EQ(FString(TEXT("a\tb\n\tc")).ConvertTabsToSpaces(4), TEXT("a   b\n    c"));
}

TEST(String, IsNumericWantsDigitsOnly)
{
	EXPECT_TRUE(FString(TEXT("-12.5")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.2.3")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1e5")).IsNumeric());
	EXPECT_FALSE(FString().IsNumeric());
}
