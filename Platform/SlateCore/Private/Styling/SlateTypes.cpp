#include "Styling/SlateTypes.h"

#include "Styling/CoreStyle.h"

#define DEFINE_STYLE_TYPE(Type) \
	const FName Type::TypeName(TEXT(#Type)); \
	const Type& Type::GetDefault() \
	{ \
		static const Type Default; \
		return Default; \
	}

DEFINE_STYLE_TYPE(FButtonStyle)
DEFINE_STYLE_TYPE(FCheckBoxStyle)
DEFINE_STYLE_TYPE(FScrollBarStyle)
DEFINE_STYLE_TYPE(FEditableTextStyle)
DEFINE_STYLE_TYPE(FEditableTextBoxStyle)
DEFINE_STYLE_TYPE(FScrollBoxStyle)
DEFINE_STYLE_TYPE(FDockTabStyle)

#undef DEFINE_STYLE_TYPE

const FName FTextBlockStyle::TypeName(TEXT("FTextBlockStyle"));

const FTextBlockStyle& FTextBlockStyle::GetDefault()
{
	static const FTextBlockStyle Default = FTextBlockStyle().SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 10));
	return Default;
}
