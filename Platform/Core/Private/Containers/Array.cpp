#include "Containers/Array.h"

namespace UE::Core::Private
{
void OnArrayIndexOutOfBounds(int64 Index, int64 Num)
{
	FDebug::CheckFailed("(Index >= 0) & (Index < ArrayNum)", __FILE__, __LINE__,
		TEXT("Array index out of bounds: %lld from an array of size %lld"), Index, Num);
}

void OnElementOfModifiedContainer(const void* Element, const void* Data)
{
	FDebug::CheckFailed("Addr < GetData() || Addr >= (GetData() + ArrayMax)", __FILE__, __LINE__,
		TEXT("Attempting to use a container element (%p) which already comes from the container being modified (%p)!"), Element,
		Data);
}
}
