#pragma once

#include "UObject/UnrealType.h"

namespace EFieldIteratorFlags
{
enum SuperClassFlags
{
	ExcludeSuper,
	IncludeSuper,
};

enum DeprecatedPropertyFlags
{
	ExcludeDeprecated,
	IncludeDeprecated,
};

enum InterfaceClassFlags
{
	ExcludeInterfaces,
	IncludeInterfaces,
};
}

/** The functions or properties of a structure: its own in declared order, then its parent's, and so up. */
template <class T>
class TFieldIterator
{
	static constexpr bool bOfProperties = std::is_base_of_v<FField, T>;
	using FBaseField = std::conditional_t<bOfProperties, FField, UField>;

public:
	explicit TFieldIterator(const UStruct* InStruct,
		EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper,
		EFieldIteratorFlags::DeprecatedPropertyFlags InDeprecatedFlags = EFieldIteratorFlags::IncludeDeprecated,
		EFieldIteratorFlags::InterfaceClassFlags InInterfaceFlags = EFieldIteratorFlags::ExcludeInterfaces)
		: Struct(InStruct)
		, Field(InStruct ? First(InStruct) : nullptr)
		, bIncludeSuper(InSuperClassFlags == EFieldIteratorFlags::IncludeSuper)
		, bIncludeDeprecated(InDeprecatedFlags == EFieldIteratorFlags::IncludeDeprecated)
	{
		FindNext();
	}

	explicit operator bool() const { return Field != nullptr; }
	void operator++()
	{
		Field = Field->Next;
		FindNext();
	}
	T* operator*() const { return static_cast<T*>(Field); }
	T* operator->() const { return static_cast<T*>(Field); }
	const UStruct* GetStruct() const { return Struct; }
	bool operator==(const TFieldIterator& Other) const { return Field == Other.Field; }
	bool operator!=(const TFieldIterator& Other) const { return Field != Other.Field; }

private:
	static FBaseField* First(const UStruct* InStruct)
	{
		if constexpr (bOfProperties)
		{
			return InStruct->ChildProperties;
		}
		else
		{
			return InStruct->Children;
		}
	}

	bool Wants(FBaseField* Candidate) const
	{
		if constexpr (bOfProperties)
		{
			return Candidate->template IsA<T>() &&
				(bIncludeDeprecated || !Candidate->template IsA<FProperty>() ||
					!static_cast<FProperty*>(Candidate)->HasAnyPropertyFlags(CPF_Deprecated));
		}
		else
		{
			return Candidate->template IsA<T>();
		}
	}

	void FindNext()
	{
		while (Struct)
		{
			while (Field && !Wants(Field))
			{
				Field = Field->Next;
			}
			if (Field || !bIncludeSuper)
			{
				return;
			}
			Struct = Struct->GetSuperStruct();
			Field = Struct ? First(Struct) : nullptr;
		}
	}

	const UStruct* Struct;
	FBaseField* Field;
	bool bIncludeSuper;
	bool bIncludeDeprecated;
};

template <typename T>
class TFieldRange
{
public:
	explicit TFieldRange(
		const UStruct* InStruct, EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper)
		: Begin(InStruct, InSuperClassFlags)
	{
	}
	TFieldIterator<T> begin() const { return Begin; }
	TFieldIterator<T> end() const { return TFieldIterator<T>(nullptr); }

private:
	TFieldIterator<T> Begin;
};

/** The property of that name and kind of the structure or its parents; null if there is none. */
template <class T>
T* FindFProperty(const UStruct* Owner, FName FieldName)
{
	return Owner ? CastField<T>(Owner->FindPropertyByName(FieldName)) : nullptr;
}

template <class T>
T* FindFProperty(const UStruct* Owner, const TCHAR* FieldName)
{
	return FindFProperty<T>(Owner, FName(FieldName));
}
