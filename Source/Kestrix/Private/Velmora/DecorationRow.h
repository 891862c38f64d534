#pragma once

#include "KestrixLog.h"
#include "Velmora/DecorationTable.h"
#include "Velmora/KeyTables.h"
#include "Velmora/VelmoraGenerator.h"

// The cells of which the rows of the decoration table are put together.

/** In the place of a widget type: every widget, or every one of CompoundWidgetTypes. */
constexpr const TCHAR* AnyWidget = TEXT("(any)");
constexpr const TCHAR* CompoundWidget = TEXT("(compound)");

/** What a widget type does with the value of a key. */
template <typename T>
struct TSetter
{
	FString WidgetType;

	/** False if this very widget does not take the key after all. */
	TFunction<bool(const FDecorationSite& Site, const T& Value)> Apply;

	/** The value is not even read. */
	bool bSkipsReading = false;

	bool TakesWidget(const FString& Type) const
	{
		if (WidgetType == AnyWidget)
		{
			return true;
		}
		return WidgetType == CompoundWidget ? CompoundWidgetTypes.Contains(Type) : IsSameKey(Type, *WidgetType);
	}
};

/** How a key's value is read. The result tells whether it could be; the output holds something either way. */
template <typename T>
struct TValueReader
{
	using FSetters = std::initializer_list<TSetter<T>>;

	const TCHAR* Name;
	bool (*Read)(const TSharedPtr<FJsonValue>& Value, T& Out);
};

/** Converts to a setter that calls a function with the widget as its own class, and the value. */
template <typename WidgetT, typename SetT>
struct TOn
{
	FString WidgetType;
	SetT Set;

	template <typename T>
	operator TSetter<T>() const
	{
		const auto Apply = [Set = Set](const FDecorationSite& Site, const T& Value)
		{
			Set(static_cast<WidgetT&>(Site.Widget), Value);
			return true;
		};
		return {WidgetType, Apply};
	}
};

template <typename WidgetT, typename SetT>
TOn<WidgetT, SetT> On(const TCHAR* WidgetType, SetT Set)
{
	return {WidgetType, Set};
}

/** Converts to the setter of a widget type whose key somebody else has dealt with; the detailed log says so. */
struct FHandledElsewhere
{
	FString WidgetType;
	FString Subject;
	FString Verdict;
	bool bSkipsReading = false;

	template <typename T>
	operator TSetter<T>() const
	{
		const auto Apply = [Subject = Subject, Verdict = Verdict](const FDecorationSite& Site, const T&)
		{
			UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("%s: %s @ %s %s"), *Subject, *Site.Key, *Site.WidgetType, *Verdict);
			return true;
		};
		return {WidgetType, Apply, bSkipsReading};
	}
};

/** The road of a value from JSON to a widget. False if no setter took it. */
template <typename T>
bool ApplyValue(const FDecorationColumns& Columns, const TValueReader<T>& Reader, const TArray<TSetter<T>>& Setters,
	const FDecorationSite& Site, const TSharedPtr<FJsonValue>& JsonValue)
{
	using EBadValue = FDecorationColumns::EBadValue;

	const TSetter<T>* Setter =
		Setters.FindByPredicate([&Site](const TSetter<T>& Entry) { return Entry.TakesWidget(Site.WidgetType); });
	if (Setter == nullptr && Columns.bTypeTestFirst)
	{
		return Columns.bIgnoredByOthers;
	}
	T Value{};
	const bool bReads = Setter == nullptr || !Setter->bSkipsReading;
	if (bReads && !Reader.Read(JsonValue, Value))
	{
		if (!Columns.BadValueWarning.IsEmpty())
		{
			UE_LOG(Velmora, Warning, TEXT("%s%s"), *Columns.BadValueWarning, *Site.Key);
		}
		if (Columns.BadValue != EBadValue::Default)
		{
			return Columns.BadValue == EBadValue::Ignored;
		}
	}
	return Setter != nullptr ? Setter->Apply(Site, Value) : Columns.bIgnoredByOthers;
}

/** A row that can be given its rarer columns on the spot. */
struct FDecorationRow : FDecoration
{
	FDecorationRow&& TypeTestFirst() &&
	{
		Columns.bTypeTestFirst = true;
		return MoveTemp(*this);
	}

	FDecorationRow&& OnBadValue(FDecorationColumns::EBadValue BadValue) &&
	{
		Columns.BadValue = BadValue;
		return MoveTemp(*this);
	}

	FDecorationRow&& WarnOnBadValue(const TCHAR* Warning) &&
	{
		Columns.BadValueWarning = Warning;
		return MoveTemp(*this);
	}

	FDecorationRow&& IgnoredByOthers() &&
	{
		Columns.bIgnoredByOthers = true;
		return MoveTemp(*this);
	}
};

template <typename T>
FDecorationRow Row(const TCHAR* Key, const TValueReader<T>& Reader, typename TValueReader<T>::FSetters SetterList)
{
	FDecorationRow Result;
	Result.Columns.Key = Key;
	Result.Columns.Value = Reader.Name;
	for (const TSetter<T>& Setter : SetterList)
	{
		Result.Columns.WidgetTypes.Add(Setter.WidgetType);
	}
	Result.Apply = [Reader, Setters = TArray<TSetter<T>>(SetterList)](
					   const FDecorationColumns& Columns, const FDecorationSite& Site, const TSharedPtr<FJsonValue>& Value)
	{
		return ApplyValue(Columns, Reader, Setters, Site, Value);
	};
	return Result;
}
