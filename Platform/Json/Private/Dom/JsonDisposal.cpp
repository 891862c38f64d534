#include "Dom/JsonDisposal.h"

thread_local FJsonDisposal::FPending* FJsonDisposal::Pending = nullptr;

FJsonDisposal::FJsonDisposal()
	: bOutermost(Pending == nullptr)
{
	if (bOutermost)
	{
		Pending = &Own;
	}
}

FJsonDisposal::~FJsonDisposal()
{
	if (!bOutermost)
	{
		return;
	}

	while (Own.Num() > 0)
	{
		const TSharedPtr<FJsonValue> Last = Own.Pop(false);
	}
	Pending = nullptr;
}

void FJsonDisposal::Take(TSharedPtr<FJsonValue>& Value)
{
	const bool bContainer = Value.IsValid() && (Value->Type == EJson::Array || Value->Type == EJson::Object);
	if (bContainer && Value.IsUnique())
	{
		Pending->Add(MoveTemp(Value));
	}
}
