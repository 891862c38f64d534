#include "UObject/NameTable.h"

#include "Containers/CaseFolding.h"
#include "Misc/AssertionMacros.h"

FNameTable& FNameTable::Get()
{
	// Never destroyed: names are used until the very end of the process.
	static FNameTable& Table = *new FNameTable;
	return Table;
}

FNameTable::FNameTable()
	: CurrentSlots(MakeSlots(1 << 14))
{
	FIndices None;
	Find(TEXT("None"), 4, true, None);
}

void FNameTable::FEntry::CopyTo(TCHAR* Dest) const
{
	for (int32 Index = 0; Index < Length; ++Index)
	{
		Dest[Index] = CharAt(Index);
	}
}

const FNameTable::FEntry& FNameTable::GetEntry(uint32 Index) const
{
	return *reinterpret_cast<const FEntry*>(Blocks[Index >> BlockBits] + SIZE_T(Index & ((1u << BlockBits) - 1)) * UnitSize);
}

bool FNameTable::Contains(uint32 Index) const
{
	return Index < NumUnits.load(std::memory_order_acquire);
}

bool FNameTable::Find(const TCHAR* Text, int32 Length, bool bAdd, FIndices& OutIndices)
{
	uint8 Narrow[NAME_SIZE];
	TCHAR AllBits = 0;
	for (int32 Index = 0; Index < Length; ++Index)
	{
		AllBits |= Text[Index];
		Narrow[Index] = uint8(Text[Index]);
	}
	const FQuery Query{Text, Length, FCaseFolding::Hash(Text, Length), AllBits < 128 ? Narrow : nullptr};

	if (FindIn(*CurrentSlots.load(std::memory_order_acquire), Query, OutIndices))
	{
		return true;
	}
	const bool bKnownInOtherSpelling = OutIndices.Comparison != ~0u;
	if (!bAdd)
	{
		OutIndices.Display = OutIndices.Comparison;
		return bKnownInOtherSpelling;
	}

	const std::lock_guard<std::mutex> Lock(Mutex);
	if (!FindIn(*CurrentSlots.load(std::memory_order_relaxed), Query, OutIndices))
	{
		OutIndices = Add(Query, OutIndices.Comparison, OutIndices.Comparison == ~0u);
	}
	return true;
}

/** @return Whether the very spelling was found. If not, the comparison index is that of another spelling, or all ones. */
bool FNameTable::FindIn(const FSlots& Slots, const FQuery& Query, FIndices& OutIndices) const
{
	OutIndices.Comparison = ~0u;
	for (uint32 Position = Query.Hash & Slots.Mask;; Position = (Position + 1) & Slots.Mask)
	{
		const uint64 Slot = Slots.Data[Position].load(std::memory_order_acquire);
		if (Slot == 0)
		{
			return false;
		}
		if (uint32(Slot >> 32) != Query.Hash)
		{
			continue;
		}
		const uint32 Index = uint32(Slot) - 1;
		const FEntry& Entry = GetEntry(Index);
		if (IsSpelledAs(Entry, Query))
		{
			OutIndices = {Entry.ComparisonIndex, Index};
			return true;
		}
		if (OutIndices.Comparison == ~0u && IsEqualIgnoringCase(Entry, Query))
		{
			OutIndices.Comparison = Entry.ComparisonIndex;
		}
	}
}

bool FNameTable::IsSpelledAs(const FEntry& Entry, const FQuery& Query)
{
	if (Entry.Length != Query.Length || bool(Entry.bWide) != !Query.Narrow)
	{
		return false;
	}
	return Entry.bWide ? FMemory::Memcmp(Entry.Wide(), Query.Text, SIZE_T(Query.Length) * sizeof(TCHAR)) == 0
					   : FMemory::Memcmp(Entry.Narrow(), Query.Narrow, SIZE_T(Query.Length)) == 0;
}

bool FNameTable::IsEqualIgnoringCase(const FEntry& Entry, const FQuery& Query)
{
	if (Entry.Length != Query.Length)
	{
		return false;
	}
	for (int32 Index = 0; Index < Query.Length; ++Index)
	{
		if (FChar::ToLower(Entry.CharAt(Index)) != FChar::ToLower(Query.Text[Index]))
		{
			return false;
		}
	}
	return true;
}

FNameTable::FIndices FNameTable::Add(const FQuery& Query, uint32 ComparisonIndex, bool bIsNew)
{
	const SIZE_T Size = FEntry::TextOffset + SIZE_T(Query.Length) * (Query.Narrow ? 1 : sizeof(TCHAR));
	const uint32 Index = Store(Query, Size);
	FEntry& Entry = const_cast<FEntry&>(GetEntry(Index));
	Entry.ComparisonIndex = bIsNew ? Index : ComparisonIndex;

	if (++NumEntries * 2 > CurrentSlots.load(std::memory_order_relaxed)->Mask)
	{
		Grow();
	}
	Insert(*CurrentSlots.load(std::memory_order_relaxed), uint64(Query.Hash) << 32 | (Index + 1));
	return {Entry.ComparisonIndex, Index};
}

/** Writes the entry's text behind the others. */
uint32 FNameTable::Store(const FQuery& Query, SIZE_T Size)
{
	const uint32 Units = uint32((Size + UnitSize - 1) / UnitSize);
	uint32 Index = NumUnits.load(std::memory_order_relaxed);
	constexpr uint32 UnitsPerBlock = 1u << BlockBits;
	const uint32 LeftInBlock = (UnitsPerBlock - Index % UnitsPerBlock) % UnitsPerBlock;
	if (LeftInBlock < Units)
	{
		Index += LeftInBlock;
		checkf((Index >> BlockBits) < MaxBlocks, TEXT("The table of names is full"));
		Blocks[Index >> BlockBits] = static_cast<uint8*>(FMemory::Malloc(BlockSize));
	}

	FEntry& Entry = const_cast<FEntry&>(GetEntry(Index));
	Entry.Length = uint16(Query.Length) & 0x7FFF;
	Entry.bWide = !Query.Narrow;
	FMemory::Memcpy(const_cast<uint8*>(Entry.Narrow()), Query.Narrow ? static_cast<const void*>(Query.Narrow) : Query.Text,
		Size - FEntry::TextOffset);
	NumUnits.store(Index + Units, std::memory_order_release);
	return Index;
}

void FNameTable::Insert(FSlots& Slots, uint64 Slot)
{
	uint32 Position = uint32(Slot >> 32) & Slots.Mask;
	while (Slots.Data[Position].load(std::memory_order_relaxed) != 0)
	{
		Position = (Position + 1) & Slots.Mask;
	}
	Slots.Data[Position].store(Slot, std::memory_order_release);
}

FNameTable::FSlots* FNameTable::MakeSlots(uint32 Count)
{
	return new FSlots{Count - 1, static_cast<FSlot*>(FMemory::MallocZeroed(SIZE_T(Count) * sizeof(FSlot)))};
}

void FNameTable::Grow()
{
	const FSlots& Old = *CurrentSlots.load(std::memory_order_relaxed);
	FSlots* const New = MakeSlots((Old.Mask + 1) * 2);
	for (uint32 Position = 0; Position <= Old.Mask; ++Position)
	{
		if (const uint64 Slot = Old.Data[Position].load(std::memory_order_relaxed))
		{
			Insert(*New, Slot);
		}
	}
	CurrentSlots.store(New, std::memory_order_release);
}
