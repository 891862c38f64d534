#include "PythonReferences.h"

#include "PythonObjects.h"
#include "Templates/UniquePtr.h"
#include "UObject/GCObject.h"
#include "UObject/UnrealType.h"

static FPythonReferenceHolder* GFirstHolder = nullptr;

FPythonReferenceHolder::FPythonReferenceHolder(bool bContainsReferences)
{
	if (bContainsReferences)
	{
		Next = GFirstHolder;
		Link = &GFirstHolder;
		if (Next)
		{
			Next->Link = &Next;
		}
		GFirstHolder = this;
	}
}

FPythonReferenceHolder::~FPythonReferenceHolder()
{
	if (Link)
	{
		*Link = Next;
		if (Next)
		{
			Next->Link = Link;
		}
	}
}

class FPythonReferences::FCollectorSide : public FGCObject
{
public:
	FCollectorSide()
		: PostCollect(FCoreUObjectDelegates::GetPostGarbageCollect().AddStatic(&PythonObjects::ForgetDestroyedObjects))
	{
	}

	~FCollectorSide() override { FCoreUObjectDelegates::GetPostGarbageCollect().Remove(PostCollect); }

	void AddReferencedObjects(FReferenceCollector& Collector) override
	{
		PythonObjects::AddReferencedObjects(Collector);
		for (FPythonReferenceHolder* Holder = GFirstHolder; Holder; Holder = Holder->Next)
		{
			Holder->AddReferencedObjects(Collector);
		}
	}

	FString GetReferencerName() const override { return TEXT("Python"); }

	static TUniquePtr<FCollectorSide>& Instance()
	{
		static TUniquePtr<FCollectorSide> Collector;
		return Collector;
	}

private:
	const FDelegateHandle PostCollect;
};

void FPythonReferences::Start()
{
	FCollectorSide::Instance() = MakeUnique<FCollectorSide>();
}

void FPythonReferences::Stop()
{
	FCollectorSide::Instance().Reset();
}

FScopedPropertyValue::FScopedPropertyValue(const FProperty* InProperty)
	: Property(InProperty)
	, Memory(FMemory::Malloc(InProperty->GetSize(), InProperty->GetMinAlignment()))
{
	Property->InitializeValue(Memory);
}

FScopedPropertyValue::~FScopedPropertyValue()
{
	Property->DestroyValue(Memory);
	FMemory::Free(Memory);
}
