#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

class FString;

/** The ways to write a FGuid, here for 0x00000001, 0x0203AABB, 0xCCDDEEFF, 0x09080706. */
enum class EGuidFormats
{
	/** 000000010203AABBCCDDEEFF09080706 */
	Digits,
	/** 000000010203aabbccddeeff09080706 */
	DigitsLower,
	/** 00000001-0203-AABB-CCDD-EEFF09080706 */
	DigitsWithHyphens,
	/** 00000001-0203-aabb-ccdd-eeff09080706 */
	DigitsWithHyphensLower,
	/** {00000001-0203-AABB-CCDD-EEFF09080706} */
	DigitsWithHyphensInBraces,
	/** (00000001-0203-AABB-CCDD-EEFF09080706) */
	DigitsWithHyphensInParentheses,
	/** {0x00000001,0x0203,0xAABB,{0xCC,0xDD,0xEE,0xFF,0x09,0x08,0x07,0x06}} */
	HexValuesInBraces,
	/** 00000001-0203AABB-CCDDEEFF-09080706 */
	UniqueObjectGuid
};

/** A number of 128 bits that no other place has made. All zeros is no identifier. */
struct CORE_API FGuid
{
	uint32 A = 0;
	uint32 B = 0;
	uint32 C = 0;
	uint32 D = 0;

	constexpr FGuid() = default;

	constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}

	constexpr explicit FGuid(EForceInit) {}

	/** A new random one (version 4 of RFC 4122). */
	static FGuid NewGuid();

	/** Reads any of the forms, in either case of letters. @return False, with the result left as it was, for any other text. */
	static bool Parse(const FString& GuidString, FGuid& OutGuid);

	/** Reads one form exactly. @return False, with the result left as it was, for any other text. */
	static bool ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid);

	FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;

	constexpr bool IsValid() const { return (A | B | C | D) != 0; }
	void Invalidate() { *this = FGuid(); }

	constexpr bool operator==(const FGuid& Other) const { return A == Other.A && B == Other.B && C == Other.C && D == Other.D; }
	constexpr bool operator!=(const FGuid& Other) const { return !(*this == Other); }

	friend constexpr bool operator<(const FGuid& Left, const FGuid& Right)
	{
		return Left.A != Right.A ? Left.A < Right.A
			: Left.B != Right.B	 ? Left.B < Right.B
			: Left.C != Right.C	 ? Left.C < Right.C
								 : Left.D < Right.D;
	}

	friend uint32 GetTypeHash(const FGuid& Guid) { return HashCombine(HashCombine(Guid.A, Guid.B), HashCombine(Guid.C, Guid.D)); }
};
