#include "Widgets/DeclarativeSyntaxSupport.h"

FName FSlateTypeText::ToName() const
{
	// The preprocessor already folds blanks within an argument; what is left is plain ASCII.
	return FName(Text);
}
