#pragma once

#include "UObject/Class.h"
#include "UObject/UObjectArray.h"

/** All objects of a class and of those derived from it, class default objects left out unless asked for. */
template <class T>
class TObjectIterator
{
public:
	enum EEndTagType
	{
		EndTag
	};

	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject)
		: ExclusionFlags(AdditionalExclusionFlags)
	{
		++*this;
	}
	explicit TObjectIterator(EEndTagType)
		: Index(MAX_int32)
	{
	}

	explicit operator bool() const { return Object != nullptr; }
	T* operator*() const { return Object; }
	T* operator->() const { return Object; }
	bool operator!=(const TObjectIterator& Other) const { return Object != Other.Object; }
	void operator++()
	{
		Object = nullptr;
		while (!Object && ++Index < GUObjectArray.GetObjectArrayNum())
		{
			UObject* const Candidate = GUObjectArray.GetObject(Index);
			if (Candidate && !Candidate->HasAnyFlags(ExclusionFlags) && Candidate->IsA(T::StaticClass()))
			{
				Object = static_cast<T*>(Candidate);
			}
		}
	}

private:
	EObjectFlags ExclusionFlags = RF_NoFlags;
	int32 Index = INDEX_NONE;
	T* Object = nullptr;
};

template <class T>
class TObjectRange
{
public:
	explicit TObjectRange(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject)
		: Begin(AdditionalExclusionFlags)
	{
	}
	TObjectIterator<T> begin() const { return Begin; }
	TObjectIterator<T> end() const { return TObjectIterator<T>(TObjectIterator<T>::EndTag); }

private:
	TObjectIterator<T> Begin;
};
