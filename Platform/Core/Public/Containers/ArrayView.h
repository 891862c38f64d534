#pragma once

#include "Containers/Array.h"

/** A range of elements that somebody else owns. */
template <typename InElementType>
class TArrayView
{
public:
	using ElementType = InElementType;

	TArrayView() = default;
	TArrayView(ElementType* InData, int32 InCount)
		: DataPtr(InData)
		, ArrayNum(InCount)
	{
	}
	template <typename OtherElementType, typename Allocator>
	TArrayView(TArray<OtherElementType, Allocator>& Array)
		: TArrayView(Array.GetData(), Array.Num())
	{
	}
	template <typename OtherElementType, typename Allocator>
	TArrayView(const TArray<OtherElementType, Allocator>& Array)
		: TArrayView(Array.GetData(), Array.Num())
	{
	}
	template <typename OtherElementType, size_t Count>
	TArrayView(OtherElementType (&Array)[Count])
		: TArrayView(Array, int32(Count))
	{
	}
	TArrayView(std::initializer_list<std::remove_const_t<ElementType>> List)
		: TArrayView(List.begin(), int32(List.size()))
	{
	}

	ElementType* GetData() const { return DataPtr; }
	int32 Num() const { return ArrayNum; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < ArrayNum; }
	ElementType& operator[](int32 Index) const
	{
		if (UNLIKELY(uint32(Index) >= uint32(ArrayNum)))
		{
			UE::Core::Private::OnArrayIndexOutOfBounds(Index, ArrayNum);
		}
		return DataPtr[Index];
	}
	ElementType* begin() const { return DataPtr; }
	ElementType* end() const { return DataPtr + ArrayNum; }

private:
	ElementType* DataPtr = nullptr;
	int32 ArrayNum = 0;
};
