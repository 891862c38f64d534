#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"

#include <gtest/gtest.h>

TEST(Printf, PrintsIntegersOfEveryLength)
{
	EXPECT_EQ(FString::Printf(TEXT("%d %i %u %x"), -5, 7, 4294967295u, 255), TEXT("-5 7 4294967295 ff"));
	EXPECT_TRUE(FString::Printf(TEXT("%X|%08X|%#x|%o"), 0xabcdef, 0xBEEF, 16, 8).Equals(TEXT("ABCDEF|0000BEEF|0x10|10")));
	EXPECT_EQ(FString::Printf(TEXT("%lld %llu %I64d %ld %zu"), MIN_int64, MAX_uint64, MAX_int64, long(-1), size_t(3)),
		TEXT("-9223372036854775808 18446744073709551615 9223372036854775807 -1 3"));
	EXPECT_EQ(FString::Printf(TEXT("%hd %hhu"), 65537, 257), TEXT("1 1"));
}

TEST(Printf, PrintsFloatsAsTheCLibraryDoes)
{
	EXPECT_EQ(FString::Printf(TEXT("%f %.2f %g %.3e %8.3f|"), 1.0f, 2.345, 0.0001, 12345.678, -1.5),
		TEXT("1.000000 2.35 0.0001 1.235e+04   -1.500|"));
	EXPECT_EQ(FString::Printf(TEXT("%.17g"), 0.1), TEXT("0.10000000000000001"));
	EXPECT_EQ(FString::Printf(TEXT("%.0f"), 1e300).Len(), 301);
}

TEST(Printf, PrintsTextOfBothWidths)
{
	EXPECT_EQ(FString::Printf(TEXT("%s|%S|%c|%%"), TEXT("wide ü"), "narrow \xC3\xBC", u'ß'), TEXT("wide ü|narrow ü|ß|%"));
	EXPECT_EQ(FString::Printf(TEXT("%5s|%-5s|%.2s|%*s|%-*d|"), TEXT("ab"), TEXT("ab"), TEXT("abcd"), 4, TEXT("x"), 3, 7),
		TEXT("   ab|ab   |ab|   x|7  |"));
	EXPECT_EQ(FString::Printf(TEXT("%s"), static_cast<const TCHAR*>(nullptr)), TEXT("(null)"));
}

TEST(Printf, WidthPrecisionAndFlagsOfIntegers)
{
	EXPECT_EQ(
		FString::Printf(TEXT("%05d|%+d|% d|%-6d|%.3d|%3d"), 42, 42, 42, 42, 7, 12345), TEXT("00042|+42| 42|42    |007|12345"));
	EXPECT_EQ(FString::Printf(TEXT("%.*f"), 1, 0.25), TEXT("0.2"));
}

TEST(Printf, AnUnknownConversionIsPrintedAsItStands)
{
	EXPECT_EQ(FString::Printf(TEXT("%y %d"), 3), TEXT("%y 3"));
	EXPECT_EQ(FString::Printf(TEXT("100%")), TEXT("100%"));
	EXPECT_EQ(FString::Printf(TEXT("")), FString());
}

TEST(Printf, GetVarArgsRefusesABufferThatIsTooSmall)
{
	TCHAR Buffer[4];
	EXPECT_EQ(FCString::Snprintf(Buffer, 4, TEXT("%d"), 123), 3);
	EXPECT_EQ(FString(Buffer), TEXT("123"));
	EXPECT_EQ(FCString::Snprintf(Buffer, 4, TEXT("%d"), 1234), -1);
}

namespace
{
template <typename... Types>
constexpr auto CanPrint(int) -> decltype(FString::Printf(TEXT("%s"), std::declval<Types>()...), true)
{
	return true;
}
template <typename... Types>
constexpr bool CanPrint(...)
{
	return false;
}

struct FPair
{
	int32 A;
	int32 B;
};
enum class EKind : uint8
{
	First
};
}

// FString::Printf takes numbers, enums and pointers, nothing else.
TEST(Printf, RefusesWhatIsNoNumberEnumOrPointer)
{
	static_assert(CanPrint<int32, uint64, float, double, bool, TCHAR>(0));
	static_assert(CanPrint<EKind, const TCHAR*, void*, const ANSICHAR*>(0));
	static_assert(!CanPrint<FString>(0) && !CanPrint<FName>(0) && !CanPrint<FText>(0) && !CanPrint<int32, FString>(0));
	static_assert(
		!CanPrint<FPair>(0) && !CanPrint<FVector2D>(0) && !CanPrint<TAttribute<int32>>(0) && !CanPrint<TOptional<int32>>(0));
	EXPECT_EQ(FString::Printf(TEXT("%d %d"), EKind::First, true), TEXT("0 1"));
}
