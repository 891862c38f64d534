#include "PythonCodeCache.h"

uint32 FPythonCodeCache::HashOf(const TCHAR* Text, int32 Length, int StartSymbol)
{
	// Four units at a time: commands are short, and this runs at every event.
	uint64 Hash = static_cast<uint64>(Length) * 0x9E3779B97F4A7C15ull + static_cast<uint64>(StartSymbol);
	int32 Index = 0;
	for (; Index + 4 <= Length; Index += 4)
	{
		uint64 Block;
		FMemory::Memcpy(&Block, Text + Index, sizeof(Block));
		Hash = (Hash ^ Block) * 0xFF51AFD7ED558CCDull;
		Hash ^= Hash >> 32;
	}
	for (; Index < Length; ++Index)
	{
		Hash = (Hash ^ Text[Index]) * 0xFF51AFD7ED558CCDull;
		Hash ^= Hash >> 32;
	}
	return static_cast<uint32>(Hash ^ (Hash >> 29));
}

PyObject* FPythonCodeCache::Find(const TCHAR* Text, int32 Length, int StartSymbol)
{
	if (Entries.Num() == 0 || Length > MaxLength)
	{
		return nullptr;
	}
	const uint32 Hash = HashOf(Text, Length, StartSymbol);
	for (int32 Index = Buckets[Hash % BucketCount]; Index != INDEX_NONE; Index = Entries[Index].NextInBucket)
	{
		FEntry& Entry = Entries[Index];
		if (Entry.Hash == Hash && Entry.StartSymbol == StartSymbol && Entry.Text.Len() == Length &&
			FMemory::Memcmp(*Entry.Text, Text, Length * sizeof(TCHAR)) == 0)
		{
			if (Index != Newest)
			{
				Unlink(Entry);
				LinkAsNewest(Index);
			}
			return Entry.Function.Get();
		}
	}
	return nullptr;
}

void FPythonCodeCache::Add(const TCHAR* Text, int32 Length, int StartSymbol, FPythonRef Function)
{
	if (Length > MaxLength)
	{
		return;
	}
	if (Buckets.Num() == 0)
	{
		Buckets.Init(INDEX_NONE, BucketCount);
		Entries.Reserve(Capacity);
	}
	const int32 Index = TakePlace();
	FEntry& Entry = Entries[Index];
	Entry.Text = FString(Length, Text);
	// The replaced function goes last: its end may run Python, which may come back here.
	const FPythonRef Replaced = MoveTemp(Entry.Function);
	Entry.Function = MoveTemp(Function);
	Entry.Hash = HashOf(Text, Length, StartSymbol);
	Entry.StartSymbol = StartSymbol;
	int32& Bucket = Buckets[Entry.Hash % BucketCount];
	Entry.NextInBucket = Bucket;
	Bucket = Index;
	LinkAsNewest(Index);
}

void FPythonCodeCache::Empty()
{
	const TArray<FEntry> Removed = MoveTemp(Entries);
	Entries.Reset();
	Buckets.Reset();
	Newest = INDEX_NONE;
	Oldest = INDEX_NONE;
}

/** A new entry while there is room, otherwise the one that was not used for the longest time. */
int32 FPythonCodeCache::TakePlace()
{
	if (Entries.Num() < Capacity)
	{
		return Entries.AddDefaulted();
	}
	const int32 Index = Oldest;
	Unlink(Entries[Index]);
	RemoveFromBucket(Index);
	return Index;
}

void FPythonCodeCache::RemoveFromBucket(int32 Index)
{
	int32* Link = &Buckets[Entries[Index].Hash % BucketCount];
	while (*Link != Index)
	{
		Link = &Entries[*Link].NextInBucket;
	}
	*Link = Entries[Index].NextInBucket;
}

void FPythonCodeCache::Unlink(FEntry& Entry)
{
	(Entry.Newer != INDEX_NONE ? Entries[Entry.Newer].Older : Newest) = Entry.Older;
	(Entry.Older != INDEX_NONE ? Entries[Entry.Older].Newer : Oldest) = Entry.Newer;
}

void FPythonCodeCache::LinkAsNewest(int32 Index)
{
	FEntry& Entry = Entries[Index];
	Entry.Newer = INDEX_NONE;
	Entry.Older = Newest;
	(Newest != INDEX_NONE ? Entries[Newest].Newer : Oldest) = Index;
	Newest = Index;
}
