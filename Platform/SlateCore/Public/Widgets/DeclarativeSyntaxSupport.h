#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "Styling/SlateWidgetStyle.h"
#include "Types/SlateAttributeDescriptor.h"
#include "Types/SlateNamedArgs.h"
#include "Widgets/SNullWidget.h"

#include <tuple>

/** Makes a widget: SNew(SButton).Text(...)[...]. What Construct takes beyond the arguments follows the type. */
#define SNew(WidgetType, ...) \
	MakeTDecl<WidgetType>(FSlateTypeText(#WidgetType), RequiredArgs::MakeRequiredArgs(__VA_ARGS__)) <<= \
		typename WidgetType::FArguments()

/** SNew that also stores the widget in ExposeAs, before it is constructed. */
#define SAssignNew(ExposeAs, WidgetType, ...) \
	MakeTDecl<WidgetType>(FSlateTypeText(#WidgetType), RequiredArgs::MakeRequiredArgs(__VA_ARGS__)).Expose(ExposeAs) <<= \
		typename WidgetType::FArguments()

/**
 * Tells a widget class to the attribute system; stands first in the class. SLATE_IMPLEMENT_WIDGET goes with it, and a definition
 * of PrivateRegisterAttributes, which names the class's TSlateAttribute members by SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION.
 */
#define SLATE_DECLARE_WIDGET(WidgetType, ParentType) SLATE_DECLARE_WIDGET_API(WidgetType, ParentType, NO_API)

#define SLATE_DECLARE_WIDGET_API(WidgetType, ParentType, ModuleApiDefine) \
public: \
	static ModuleApiDefine const FSlateWidgetClassData& StaticWidgetClass(); \
	virtual ModuleApiDefine const FSlateWidgetClassData& GetWidgetClass() const override; \
\
private: \
	using Super = ParentType; \
	using PrivateThisType = WidgetType; \
	using PrivateParentType = ParentType; \
	static void PrivateRegisterAttributes(FSlateAttributeInitializer&);

#define SLATE_IMPLEMENT_WIDGET(WidgetType) \
	const FSlateWidgetClassData& WidgetType::StaticWidgetClass() \
	{ \
		static const FSlateWidgetClassData WidgetClassData( \
			PrivateParentType::StaticWidgetClass(), TEXT(#WidgetType), &WidgetType::PrivateRegisterAttributes); \
		return WidgetClassData; \
	} \
	const FSlateWidgetClassData& WidgetType::GetWidgetClass() const \
	{ \
		return StaticWidgetClass(); \
	}

/** Names a TSlateAttribute member of the class, and what its change invalidates. */
#define SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION(Initializer, Property, Reason) \
	SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION_WITH_NAME(Initializer, TEXT(#Property), Property, Reason)

#define SLATE_ADD_MEMBER_ATTRIBUTE_DEFINITION_WITH_NAME(Initializer, Name, Property, Reason) \
	static_assert(!decltype(Property)::HasDefinedInvalidationReason, \
		"Where SLATE_DECLARE_WIDGET is used, the reason is said here and not in the attribute's type."); \
	Initializer.AddMemberAttribute(Name, STRUCT_OFFSET(PrivateThisType, Property), Reason)

#define SLATE_BEGIN_ARGS(InWidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<InWidgetType> \
	{ \
		using WidgetArgsType = FArguments; \
		using WidgetType = InWidgetType; \
		FORCENOINLINE FArguments()

#define SLATE_END_ARGS() \
	} \
	;

/** An argument by value. */
#define SLATE_ARGUMENT(ArgType, ArgName) \
	ArgType _##ArgName; \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = MoveTemp(InArg); \
		return *this; \
	}

/** An argument that may be bound to a getter. */
#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	TAttribute<AttrType> _##AttrName; \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = MoveTemp(InAttribute); \
		return *this; \
	} \
	WidgetArgsType& AttrName##_Lambda(TFunction<AttrType()> InFunctor) \
	{ \
		_##AttrName = TAttribute<AttrType>::CreateLambda(MoveTemp(InFunctor)); \
		return *this; \
	} \
	template <class UserClass> \
	WidgetArgsType& AttrName(UserClass* InUserObject, AttrType (UserClass::*InFunc)() const) \
	{ \
		_##AttrName = TAttribute<AttrType>::CreateSP(InUserObject, InFunc); \
		return *this; \
	}

/** A delegate. */
#define SLATE_EVENT(DelegateName, EventName) \
	DelegateName _##EventName; \
	WidgetArgsType& EventName(const DelegateName& InDelegate) \
	{ \
		_##EventName = InDelegate; \
		return *this; \
	} \
	template <typename FunctorType> \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor) \
	{ \
		_##EventName = DelegateName::CreateLambda(Forward<FunctorType>(InFunctor)); \
		return *this; \
	} \
	template <class UserClass, typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName(UserClass* InUserObject, FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateSP(InUserObject, InFunc, Vars...); \
		return *this; \
	} \
	template <typename FunctionType, typename... VarTypes> \
	WidgetArgsType& EventName##_Static(FunctionType InFunc, VarTypes... Vars) \
	{ \
		_##EventName = DelegateName::CreateStatic(InFunc, Vars...); \
		return *this; \
	}

/** A pointer to a style, which outlives the widget. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName) \
	const ArgType* _##ArgName = nullptr; \
	WidgetArgsType& ArgName(const ArgType* InArg) \
	{ \
		_##ArgName = InArg; \
		return *this; \
	}

/** One child that is given by name. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	TSharedRef<SWidget> _##SlotName = SNullWidget::NullWidget; \
	TNamedSlotArguments<DeclarationType> SlotName() \
	{ \
		return TNamedSlotArguments<DeclarationType>(*this, _##SlotName); \
	}

/** The child that follows in brackets. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	SLATE_NAMED_SLOT(DeclarationType, SlotName); \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		_##SlotName = InChild; \
		return *this; \
	}

/** Slots that are added with a plus. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName) \
	TArray<typename SlotType::FSlotArguments> _##SlotName; \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return *this; \
	} \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments&& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return *this; \
	}

/** Lets a named slot be followed by brackets and go back to the arguments. */
template <typename ArgumentsType>
class TNamedSlotArguments
{
public:
	TNamedSlotArguments(ArgumentsType& InArguments, TSharedRef<SWidget>& InChild)
		: Arguments(InArguments)
		, Child(InChild)
	{
	}

	ArgumentsType& operator[](const TSharedRef<SWidget>& InChild)
	{
		Child = InChild;
		return Arguments;
	}

private:
	ArgumentsType& Arguments;
	TSharedRef<SWidget>& Child;
};

/** The text of an SNew argument, as the name of the widget's type: runs of blanks become one. */
struct SLATECORE_API FSlateTypeText
{
	explicit FSlateTypeText(const ANSICHAR* InText)
		: Text(InText)
	{
	}

	FName ToName() const;

	const ANSICHAR* Text;
};

/** What Construct takes beyond the arguments. */
namespace RequiredArgs
{
template <typename... ArgumentTypes>
struct TRequiredArgs
{
	std::tuple<ArgumentTypes&&...> Arguments;

	template <typename WidgetType>
	void CallConstruct(WidgetType& Widget, const typename WidgetType::FArguments& WidgetArgs)
	{
		std::apply([&](auto&&... Each) { Widget.Construct(WidgetArgs, Forward<decltype(Each)>(Each)...); }, MoveTemp(Arguments));
	}
};

template <typename... ArgumentTypes>
TRequiredArgs<ArgumentTypes...> MakeRequiredArgs(ArgumentTypes&&... Arguments)
{
	return TRequiredArgs<ArgumentTypes...>{std::tuple<ArgumentTypes&&...>(Forward<ArgumentTypes>(Arguments)...)};
}
}

/** A widget in the making. */
template <class WidgetType, typename RequiredArgsType>
struct TSlateDecl
{
	TSlateDecl(const FSlateTypeText& TypeText, RequiredArgsType&& InRequiredArgs)
		: Widget(MakeShared<WidgetType>())
		, Required(MoveTemp(InRequiredArgs))
	{
		Widget->SetTypeOfWidget(TypeText.ToName());
	}

	template <class ExposeAsWidgetClass>
	TSlateDecl&& Expose(TSharedPtr<ExposeAsWidgetClass>& OutVarToInit) &&
	{
		OutVarToInit = Widget;
		return MoveTemp(*this);
	}

	template <class ExposeAsWidgetClass>
	TSlateDecl&& Expose(TWeakPtr<ExposeAsWidgetClass>& OutVarToInit) &&
	{
		OutVarToInit = Widget;
		return MoveTemp(*this);
	}

	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) &&
	{
		Widget->SWidgetConstruct(InArgs);
		Required.CallConstruct(Widget.Get(), InArgs);
		return Widget;
	}

	TSharedRef<WidgetType> Widget;
	RequiredArgsType Required;
};

template <typename WidgetType, typename RequiredArgsType>
TSlateDecl<WidgetType, RequiredArgsType> MakeTDecl(const FSlateTypeText& TypeText, RequiredArgsType&& InRequiredArgs)
{
	return TSlateDecl<WidgetType, RequiredArgsType>(TypeText, MoveTemp(InRequiredArgs));
}
