#pragma once

#include "Containers/Array.h"

/**
 * Elements at fixed indices: a removal leaves a hole, and the next addition fills the hole that was made last. While there
 * are no holes, elements lie in the order of adding.
 */
template <typename InElementType>
class TSparseArray
{
public:
	using ElementType = InElementType;

	TSparseArray() = default;
	TSparseArray(const TSparseArray& Other) { CopyToEmpty(Other); }
	TSparseArray(TSparseArray&& Other) noexcept { MoveToEmpty(Other); }
	~TSparseArray() { DestructElements(); }

	TSparseArray& operator=(const TSparseArray& Other)
	{
		if (this != &Other)
		{
			Reset();
			CopyToEmpty(Other);
		}
		return *this;
	}
	TSparseArray& operator=(TSparseArray&& Other) noexcept
	{
		if (this != &Other)
		{
			TSparseArray Old(MoveTemp(*this));
			MoveToEmpty(Other);
		}
		return *this;
	}

	/** Elements without the holes. */
	int32 Num() const { return Slots.Num() - NumHoles; }
	bool IsEmpty() const { return Num() == 0; }
	/** One more than the highest index in use. */
	int32 GetMaxIndex() const { return Slots.Num(); }
	SIZE_T GetAllocatedSize() const { return Slots.GetAllocatedSize() + HoleBits.GetAllocatedSize(); }
	bool IsValidIndex(int32 Index) const { return Slots.IsValidIndex(Index) && IsAllocated(Index); }

	bool IsAllocated(int32 Index) const
	{
		return NumHoles == 0 || Index / 32 >= HoleBits.Num() || !(HoleBits[Index / 32] & (1u << (Index % 32)));
	}

	ElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return Slots.GetData()[Index].Element;
	}
	const ElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return Slots.GetData()[Index].Element;
	}

	/** Without the check, for an index that is known to hold an element. */
	ElementType& GetUnchecked(int32 Index) { return Slots.GetData()[Index].Element; }
	const ElementType& GetUnchecked(int32 Index) const { return Slots.GetData()[Index].Element; }

	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		const int32 Index = AddUninitialized();
		new (static_cast<void*>(&Slots.GetData()[Index].Element)) ElementType(Forward<ArgTypes>(Args)...);
		return Index;
	}
	int32 Add(const ElementType& Element) { return Emplace(Element); }
	int32 Add(ElementType&& Element) { return Emplace(MoveTempIfPossible(Element)); }

	/** Makes room for an element that the caller constructs. */
	int32 AddUninitialized()
	{
		if (NumHoles == 0)
		{
			return Slots.AddUninitialized();
		}
		const int32 Index = FirstHole;
		FirstHole = Slots.GetData()[Index].NextHole;
		HoleBits[Index / 32] &= ~(1u << (Index % 32));
		if (--NumHoles == 0)
		{
			HoleBits.Empty();
		}
		return Index;
	}

	void RemoveAt(int32 Index)
	{
		RangeCheck(Index);
		FSlot& Slot = Slots.GetData()[Index];
		Slot.Element.~ElementType();
		if (Index / 32 >= HoleBits.Num())
		{
			HoleBits.SetNumZeroed((Slots.Num() + 31) / 32);
		}
		HoleBits[Index / 32] |= 1u << (Index % 32);
		Slot.NextHole = FirstHole;
		FirstHole = Index;
		++NumHoles;
	}

	void Empty(int32 ExpectedNumElements = 0)
	{
		DestructElements();
		Slots.Empty(ExpectedNumElements);
		ForgetHoles();
	}
	void Reset()
	{
		DestructElements();
		Slots.Reset();
		ForgetHoles();
	}
	void Reserve(int32 ExpectedNumElements) { Slots.Reserve(ExpectedNumElements); }

	/** Closes the holes, keeping the order. @return Whether there were any. */
	bool Compact()
	{
		if (NumHoles == 0)
		{
			return false;
		}
		FSlot* const Data = Slots.GetData();
		int32 NumKept = 0;
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			if (IsAllocated(Index))
			{
				FMemory::Memmove(static_cast<void*>(Data + NumKept++), static_cast<const void*>(Data + Index), sizeof(FSlot));
			}
		}
		Slots.SetNumUninitialized(NumKept, false);
		ForgetHoles();
		return true;
	}
	void Shrink()
	{
		Compact();
		Slots.Shrink();
	}

	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		Compact();
		ElementType* const First = reinterpret_cast<ElementType*>(Slots.GetData());
		static_assert(sizeof(FSlot) == sizeof(ElementType), "Slots hold elements densely");
		std::stable_sort(First, First + Slots.Num(), Predicate);
	}

	template <bool bConst>
	class TBaseIterator
	{
	public:
		using ArrayType = std::conditional_t<bConst, const TSparseArray, TSparseArray>;
		using ItElementType = std::conditional_t<bConst, const ElementType, ElementType>;

		TBaseIterator(ArrayType& InArray, int32 StartIndex)
			: Array(&InArray)
			, Index(StartIndex)
		{
			SkipHoles();
		}
		TBaseIterator& operator++()
		{
			++Index;
			SkipHoles();
			return *this;
		}
		explicit operator bool() const { return Index < Array->GetMaxIndex(); }
		int32 GetIndex() const { return Index; }
		ItElementType& operator*() const { return Array->GetUnchecked(Index); }
		ItElementType* operator->() const { return &Array->GetUnchecked(Index); }
		/** An array that is emptied on the way ends the loop. */
		bool operator!=(const TBaseIterator& Other) const { return Index < Array->GetMaxIndex() && Index != Other.Index; }

	private:
		void SkipHoles()
		{
			while (Index < Array->GetMaxIndex() && !Array->IsAllocated(Index))
			{
				++Index;
			}
		}

		ArrayType* Array;
		int32 Index;
	};

	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;
	TIterator begin() { return TIterator(*this, 0); }
	TConstIterator begin() const { return TConstIterator(*this, 0); }
	TIterator end() { return TIterator(*this, GetMaxIndex()); }
	TConstIterator end() const { return TConstIterator(*this, GetMaxIndex()); }

private:
	/** An element, or the link to the next hole. */
	union FSlot
	{
		FSlot() {}
		~FSlot() {}
		ElementType Element;
		int32 NextHole;
	};

	void RangeCheck(int32 Index) const
	{
		if (UNLIKELY(!IsValidIndex(Index)))
		{
			UE::Core::Private::OnArrayIndexOutOfBounds(Index, Slots.Num());
		}
	}

	void DestructElements()
	{
		if constexpr (!std::is_trivially_destructible_v<ElementType>)
		{
			for (ElementType& Element : *this)
			{
				Element.~ElementType();
			}
		}
	}

	void ForgetHoles()
	{
		HoleBits.Empty();
		FirstHole = INDEX_NONE;
		NumHoles = 0;
	}

	/** Holes are copied too, so that both arrays use the same indices. */
	void CopyToEmpty(const TSparseArray& Other)
	{
		Slots.Reserve(Other.Slots.Num());
		Slots.AddUninitialized(Other.Slots.Num());
		HoleBits = Other.HoleBits;
		FirstHole = Other.FirstHole;
		NumHoles = Other.NumHoles;
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			FSlot& Slot = Slots.GetData()[Index];
			const FSlot& OtherSlot = Other.Slots.GetData()[Index];
			if (IsAllocated(Index))
			{
				new (static_cast<void*>(&Slot.Element)) ElementType(OtherSlot.Element);
			}
			else
			{
				Slot.NextHole = OtherSlot.NextHole;
			}
		}
	}

	void MoveToEmpty(TSparseArray& Other)
	{
		Slots = MoveTemp(Other.Slots);
		HoleBits = MoveTemp(Other.HoleBits);
		FirstHole = Exchange(Other.FirstHole, int32(INDEX_NONE));
		NumHoles = Exchange(Other.NumHoles, 0);
	}

	TArray<FSlot> Slots;
	/** One bit per slot that was ever free since there were no holes; empty without holes. */
	TArray<uint32> HoleBits;
	int32 FirstHole = INDEX_NONE;
	int32 NumHoles = 0;
};
