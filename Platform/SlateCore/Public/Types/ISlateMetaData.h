#pragma once

#include "CoreMinimal.h"

/** Data of any kind that hangs on a widget (SWidget::AddMetadata). Kinds are told apart by name, since there is no RTTI. */
class ISlateMetaData
{
public:
	virtual ~ISlateMetaData() = default;

	static const FName& GetTypeId()
	{
		static const FName Type(TEXT("ISlateMetaData"));
		return Type;
	}

	bool IsOfType(const FName& Type) const { return IsOfTypeImpl(Type); }

	template <typename MetaDataType>
	bool IsOfType() const
	{
		return IsOfTypeImpl(MetaDataType::GetTypeId());
	}

protected:
	virtual bool IsOfTypeImpl(const FName& Type) const { return GetTypeId() == Type; }
};

#define SLATE_METADATA_TYPE(TYPE, BASE) \
	static const FName& GetTypeId() \
	{ \
		static const FName Type(TEXT(#TYPE)); \
		return Type; \
	} \
	virtual bool IsOfTypeImpl(const FName& Type) const override \
	{ \
		return GetTypeId() == Type || BASE::IsOfTypeImpl(Type); \
	}

/** A name by which tools and tests find a widget. It has no visible effect. */
class FTagMetaData : public ISlateMetaData
{
public:
	SLATE_METADATA_TYPE(FTagMetaData, ISlateMetaData)

	FTagMetaData(FName InTag)
		: Tag(InTag)
	{
	}

	FName Tag;
};
