#include "Velmora/EventCommands.h"

#include "AfterFrame.h"
#include "KestrixLog.h"
#include "PythonCommand.h"
#include "ToolsSettings.h"
#include "Velmora/VelmoraGenerator.h"
#include "Widgets/SWidget.h"

namespace
{
/** By value: the command may end the widget, and with it the handler that holds the text. */
void RunCommand(FString Command)
{
	RunPythonCommand(Command);
}

/** For events of one value: each "%" of the template is the value, the operator "%" of Python included. */
void RunCommandWithValue(const FString& Template, const FString& Value)
{
	RunCommand(Template.Replace(TEXT("%"), *Value, ESearchCase::IgnoreCase));
}

void RunCommandWithText(const FString& Template, const FText& Text)
{
	if (!Text.IsEmpty())
	{
		RunCommandWithValue(Template, TEXT("'''") + Text.ToString() + TEXT("'''"));
	}
}
}

FString FillWidgetPath(const FString& Template, const FString& WidgetPath)
{
	const FString Quoted = TEXT("\"") + WidgetPath + TEXT("\"");
	return Template.Replace(TEXT("%WidgetPath"), *Quoted, ESearchCase::IgnoreCase);
}

FOnClicked MakeClickHandler(const FString& Command)
{
	return FOnClicked::CreateLambda(
		[Command]()
		{
			UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("Button Clicked. Command: %s"), *Command);
			if (!Command.IsEmpty())
			{
				RunCommand(Command);
			}
			return FReply::Handled();
		});
}

FOnCheckStateChanged MakeCheckHandler(const FString& Command)
{
	return FOnCheckStateChanged::CreateLambda([Command](ECheckBoxState State)
		{ RunCommandWithValue(Command, State == ECheckBoxState::Checked ? TEXT("True") : TEXT("False")); });
}

FOnTextChanged MakeTextChangedHandler(const FString& Command)
{
	return FOnTextChanged::CreateLambda([Command](const FText& Text) { RunCommandWithText(Command, Text); });
}

FOnTextCommitted MakeTextCommittedHandler(const FString& Command)
{
	return FOnTextCommitted::CreateLambda([Command](const FText& Text, ETextCommit::Type) { RunCommandWithText(Command, Text); });
}

FWidgetActiveTimerDelegate MakeTickHandler(const FString& Command)
{
	return FWidgetActiveTimerDelegate::CreateLambda(
		[Command](double CurrentTime, float DeltaTime)
		{
			if (Command.IsEmpty())
			{
				return EActiveTimerReturnType::Continue;
			}
			if (bLogOnTickWarnings)
			{
				UE_LOG(Velmora, Warning, TEXT("Velmora tick: %f, don't abuse it."), DeltaTime);
			}
			const FWidgetTickScope Scope;
			RunCommand(Command);
			return EActiveTimerReturnType::Continue;
		});
}
