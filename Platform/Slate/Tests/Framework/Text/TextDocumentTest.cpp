#include "Framework/Text/TextDocument.h"

#include <gtest/gtest.h>

namespace
{
FTextDocument MakeDocument(const TCHAR* Text)
{
	FTextDocument Document(true);
	Document.SetText(Text);
	return Document;
}

FTextSelection Span(int32 LineA, int32 OffsetA, int32 LineB, int32 OffsetB)
{
	return FTextSelection(FTextLocation(LineA, OffsetA), FTextLocation(LineB, OffsetB));
}
}

TEST(TextDocument, KeepsItsTextWithLineEndsMadeEqual)
{
	const FTextDocument Document = MakeDocument(TEXT("one\r\ntwo\rthree\n"));
	EXPECT_EQ(Document.NumLines(), 4);
	EXPECT_TRUE(Document.GetText().Equals(TEXT("one\ntwo\nthree\n")));
	EXPECT_TRUE(Document.Equals(TEXT("one\ntwo\nthree\n")));
	EXPECT_TRUE(Document.Equals(TEXT("one\r\ntwo\rthree\n")));
	EXPECT_FALSE(Document.Equals(TEXT("one\ntwo\nThree\n")));
	EXPECT_FALSE(Document.Equals(TEXT("one\ntwo\nthree\n\n")));
	EXPECT_FALSE(Document.Equals(TEXT("one\ntwo three\n")));
	EXPECT_FALSE(Document.Equals(TEXT("one")));
}

TEST(TextDocument, ASingleLineKeepsLineEndsAsCharacters)
{
	FTextDocument Document(false);
	Document.SetText(TEXT("a\r\nb"));
	EXPECT_EQ(Document.NumLines(), 1);
	EXPECT_TRUE(Document.GetText().Equals(TEXT("a\r\nb")));
}

TEST(TextDocument, ANewDocumentHasOneEmptyLine)
{
	const FTextDocument Document(true);
	EXPECT_EQ(Document.NumLines(), 1);
	EXPECT_TRUE(Document.IsEmpty());
	EXPECT_TRUE(Document.Equals(TEXT("")));
}

TEST(TextDocument, ReplacingWithinALineTouchesThatLine)
{
	FTextDocument Document = MakeDocument(TEXT("first\nsecond\nthird"));
	const FTextChange Change = Document.Replace(Span(1, 1, 1, 4), TEXT("XY"));
	EXPECT_TRUE(Document.Equals(TEXT("first\nsXYnd\nthird")));
	EXPECT_EQ(Change.FirstLine, 1);
	EXPECT_EQ(Change.NumRemovedLines, 1);
	EXPECT_EQ(Change.NumInsertedLines, 1);
	EXPECT_TRUE(Change.End == FTextLocation(1, 3));
}

TEST(TextDocument, ReplacingAcrossLinesJoinsThem)
{
	FTextDocument Document = MakeDocument(TEXT("first\nsecond\nthird"));
	const FTextChange Change = Document.Replace(Span(2, 2, 0, 3), TEXT(""));
	EXPECT_TRUE(Document.Equals(TEXT("firird")));
	EXPECT_EQ(Change.NumRemovedLines, 3);
	EXPECT_TRUE(Change.End == FTextLocation(0, 3));
	EXPECT_EQ(Document.NumCharacters(), 6);
}

TEST(TextDocument, InsertedLineEndsMakeLines)
{
	FTextDocument Document = MakeDocument(TEXT("ab"));
	const FTextChange Change = Document.Replace(Span(0, 1, 0, 1), TEXT("1\n\n2"));
	EXPECT_TRUE(Document.Equals(TEXT("a1\n\n2b")));
	EXPECT_EQ(Change.NumInsertedLines, 3);
	EXPECT_TRUE(Change.End == FTextLocation(2, 1));
	EXPECT_TRUE(Document.GetEndOfInserted(FTextLocation(0, 1), TEXT("1\n\n2")) == Change.End);
}

TEST(TextDocument, ARangeIsReadInEitherDirection)
{
	const FTextDocument Document = MakeDocument(TEXT("first\nsecond\nthird"));
	EXPECT_TRUE(Document.GetText(Span(2, 2, 0, 3)).Equals(TEXT("st\nsecond\nth")));
	EXPECT_TRUE(Document.GetText(Span(1, 1, 1, 3)).Equals(TEXT("ec")));
}

TEST(TextDocument, AnyLocationIsBroughtInside)
{
	const FTextDocument Document = MakeDocument(TEXT("ab\nc"));
	EXPECT_TRUE(Document.Clamp(FTextLocation(7, 0)) == FTextLocation(1, 1));
	EXPECT_TRUE(Document.Clamp(FTextLocation(0, 9)) == FTextLocation(0, 2));
	EXPECT_TRUE(Document.Clamp(FTextLocation(-1, -1)) == FTextLocation(0, 0));
}
