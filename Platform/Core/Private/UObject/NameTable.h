#pragma once

#include "CoreTypes.h"
#include "UObject/UnrealNames.h"
#include "Templates/UnrealTemplate.h"

#include <atomic>
#include <mutex>

/**
 * The texts of all names, each spelling once and for ever. Reading takes no lock: entries never move, and a hash table that
 * became too small is kept for those who still read it.
 */
class FNameTable : FNoncopyable
{
public:
	static FNameTable& Get();

	struct FIndices
	{
		/** The first spelling that the table met; the same for all spellings. */
		uint32 Comparison;
		uint32 Display;
	};

	/** One spelling. */
	struct FEntry
	{
		uint32 ComparisonIndex;
		uint16 Length : 15;
		/** Whether characters take two bytes; ASCII texts take one. */
		uint16 bWide : 1;

		const uint8* Narrow() const { return reinterpret_cast<const uint8*>(this) + TextOffset; }
		const TCHAR* Wide() const { return reinterpret_cast<const TCHAR*>(Narrow()); }
		TCHAR CharAt(int32 Index) const { return bWide ? Wide()[Index] : Narrow()[Index]; }
		void CopyTo(TCHAR* Dest) const;

		static constexpr SIZE_T TextOffset = 6;
	};

	/** @return False if there is no such name and none is to be added. */
	bool Find(const TCHAR* Text, int32 Length, bool bAdd, FIndices& OutIndices);
	const FEntry& GetEntry(uint32 Index) const;
	bool Contains(uint32 Index) const;

private:
	/** A hash with the index of an entry in one word; zero where nothing is. Entries therefore count from 1 here. */
	using FSlot = std::atomic<uint64>;

	struct FSlots
	{
		uint32 Mask;
		FSlot* Data;
	};

	struct FQuery
	{
		const TCHAR* Text;
		int32 Length;
		uint32 Hash;
		/** The text in bytes if it is all ASCII, else null. */
		const uint8* Narrow;
	};

	FNameTable();

	bool FindIn(const FSlots& Slots, const FQuery& Query, FIndices& OutIndices) const;
	static bool IsSpelledAs(const FEntry& Entry, const FQuery& Query);
	static bool IsEqualIgnoringCase(const FEntry& Entry, const FQuery& Query);
	FIndices Add(const FQuery& Query, uint32 ComparisonIndex, bool bIsNew);
	uint32 Store(const FQuery& Query, SIZE_T Size);
	static void Insert(FSlots& Slots, uint64 Slot);
	static FSlots* MakeSlots(uint32 Count);
	void Grow();

	static constexpr uint32 BlockBits = 16;
	static constexpr uint32 UnitSize = 4;
	static constexpr uint32 BlockSize = UnitSize << BlockBits;
	static constexpr uint32 MaxBlocks = 8192;

	std::atomic<FSlots*> CurrentSlots;
	std::mutex Mutex;
	uint32 NumEntries = 0;
	std::atomic<uint32> NumUnits{0};
	uint8* Blocks[MaxBlocks] = {};
};
