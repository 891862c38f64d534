#pragma once

#include "PythonRef.h"

/**
 * Compiled commands by their text, so that a repeated event costs an evaluation and no compilation.
 *
 * Holds at most Capacity commands; the one that was not used for the longest time makes room. Texts are compared exactly.
 */
class PYTHONSCRIPTPLUGIN_API FPythonCodeCache
{
public:
	static constexpr int32 Capacity = 512;

	/** Longer texts are generated ones, which do not come again. */
	static constexpr int32 MaxLength = 16 * 1024;

	/** The function of a text that was added under the same start symbol (Py_file_input and the like), or null. */
	PyObject* Find(const TCHAR* Text, int32 Length, int StartSymbol);

	/** Adds a function for a text that Find does not know, unless the text is too long. */
	void Add(const TCHAR* Text, int32 Length, int StartSymbol, FPythonRef Function);

	int32 Num() const { return Entries.Num(); }
	void Empty();

private:
	struct FEntry
	{
		FString Text;
		FPythonRef Function;
		uint32 Hash;
		int32 StartSymbol;
		/** Neighbours in the order of use, and the next entry of the same bucket. */
		int32 Newer;
		int32 Older;
		int32 NextInBucket;
	};

	static constexpr uint32 BucketCount = 1024;

	static uint32 HashOf(const TCHAR* Text, int32 Length, int StartSymbol);
	void Unlink(FEntry& Entry);
	void LinkAsNewest(int32 Index);
	void RemoveFromBucket(int32 Index);
	int32 TakePlace();

	TArray<FEntry> Entries;
	TArray<int32> Buckets;
	int32 Newest = INDEX_NONE;
	int32 Oldest = INDEX_NONE;
};
