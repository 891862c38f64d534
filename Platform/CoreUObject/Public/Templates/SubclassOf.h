#pragma once

#include "UObject/Class.h"

/** A class that derives from TClass, or null: what does not derive from it reads as null. */
template <class TClass>
class TSubclassOf
{
public:
	using ElementType = TClass;

	TSubclassOf() = default;
	TSubclassOf(std::nullptr_t) {}
	TSubclassOf(UClass* From)
		: Class(From)
	{
	}
	template <class OtherClass, typename = std::enable_if_t<std::is_base_of_v<TClass, OtherClass>>>
	TSubclassOf(const TSubclassOf<OtherClass>& Other)
		: Class(*Other)
	{
	}

	UClass* Get() const { return **this; }
	UClass* operator*() const { return Class && Class->IsChildOf(TClass::StaticClass()) ? Class : nullptr; }
	UClass* operator->() const { return **this; }
	operator UClass*() const { return **this; }
	TClass* GetDefaultObject() const
	{
		UClass* const Valid = **this;
		return Valid ? Valid->GetDefaultObject<TClass>() : nullptr;
	}
	friend uint32 GetTypeHash(const TSubclassOf& Subclass) { return PointerHash(Subclass.Class); }

private:
	UClass* Class = nullptr;
};
