#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"

class ISlateMetaData;
class IToolTip;

/** The declarative arguments that every widget takes. */
struct FSlateBaseNamedArgs
{
	TAttribute<FText> _ToolTipText;
	TSharedPtr<IToolTip> _ToolTip;
	TAttribute<TOptional<EMouseCursor::Type>> _Cursor;
	TAttribute<bool> _IsEnabled;
	TAttribute<EVisibility> _Visibility;
	FName _Tag;
	TArray<TSharedRef<ISlateMetaData>> MetaData;
};

/** The same, with the calls that set them and return the widget's own arguments. */
template <typename InWidgetType>
struct TSlateBaseNamedArgs : FSlateBaseNamedArgs
{
	using WidgetType = InWidgetType;
	using WidgetArgsType = typename InWidgetType::FArguments;

	WidgetArgsType& ToolTipText(const TAttribute<FText>& InValue) { return Take(_ToolTipText, InValue); }
	WidgetArgsType& ToolTip(const TSharedPtr<IToolTip>& InValue) { return Take(_ToolTip, InValue); }
	WidgetArgsType& Cursor(const TAttribute<TOptional<EMouseCursor::Type>>& InValue) { return Take(_Cursor, InValue); }
	WidgetArgsType& IsEnabled(const TAttribute<bool>& InValue) { return Take(_IsEnabled, InValue); }
	WidgetArgsType& Visibility(const TAttribute<EVisibility>& InValue) { return Take(_Visibility, InValue); }
	WidgetArgsType& Visibility_Lambda(TFunction<EVisibility()> InFunction)
	{
		return Take(_Visibility, TAttribute<EVisibility>::CreateLambda(MoveTemp(InFunction)));
	}
	WidgetArgsType& IsEnabled_Lambda(TFunction<bool()> InFunction)
	{
		return Take(_IsEnabled, TAttribute<bool>::CreateLambda(MoveTemp(InFunction)));
	}
	WidgetArgsType& Tag(FName InValue) { return Take(_Tag, InValue); }

	WidgetArgsType& AddMetaData(const TSharedRef<ISlateMetaData>& InValue)
	{
		MetaData.Add(InValue);
		return Me();
	}

protected:
	WidgetArgsType& Me() { return static_cast<WidgetArgsType&>(*this); }

	template <typename MemberType, typename ValueType>
	WidgetArgsType& Take(MemberType& Member, ValueType&& Value)
	{
		Member = Forward<ValueType>(Value);
		return Me();
	}
};
