#include "PythonDocs.h"

#include "PythonFunction.h"
#include "PythonNaming.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

/** A comment of C++ taken apart: what it says of the whole, of each parameter and of the result. */
struct FFunctionComment
{
	FString Summary;
	TMap<FString, FString> Parameters;
	FString Result;

	explicit FFunctionComment(const FString& ToolTip)
	{
		TArray<FString> Lines;
		ToolTip.ParseIntoArrayLines(Lines, false);
		FString* Target = &Summary;
		for (const FString& Line : Lines)
		{
			const FString Text = Line.TrimStartAndEnd();
			Target = Text.StartsWith(TEXT("@")) ? BeginTag(Text) : Append(Target, Text);
		}
		Summary.TrimStartAndEndInline();
	}

private:
	FString* Append(FString* Target, const FString& Text)
	{
		*Target += (Target->IsEmpty() ? TEXT("") : Target == &Summary ? TEXT("\n") : TEXT(" ")) + Text;
		return Target;
	}

	/** "@param Name Text", "@return Text"; other tags stay part of the summary. */
	FString* BeginTag(const FString& Text)
	{
		FString Tag;
		FString Rest;
		Text.Split(TEXT(" "), &Tag, &Rest);
		Rest.TrimStartInline();
		if (Tag == TEXT("@return") || Tag == TEXT("@returns"))
		{
			Result = Rest;
			return &Result;
		}
		if (Tag != TEXT("@param"))
		{
			return Append(&Summary, Text);
		}
		FString Name = Rest;
		FString Description;
		Rest.Split(TEXT(" "), &Name, &Description);
		return &Parameters.Add(Name, Description.TrimStart());
	}
};

static FString JoinParameters(
	const FPythonFunction& Function, FString (*Write)(const FPythonFunction&, const FPythonFunction::FParameter&))
{
	TArray<FString> Parts;
	for (const FPythonFunction::FParameter& Input : Function.GetInputs())
	{
		Parts.Add(Write(Function, Input));
	}
	return FString::Join(Parts, TEXT(", "));
}

static FString WritePlain(const FPythonFunction& Function, const FPythonFunction::FParameter& Input)
{
	return Input.bHasDefault ? Input.Name + TEXT("=") + Function.DescribeDefault(Input) : Input.Name;
}

static FString WriteTyped(const FPythonFunction& Function, const FPythonFunction::FParameter& Input)
{
	const FString Typed = Input.Name + TEXT(": ") + Input.Converter->AcceptedTypeName();
	return Input.bHasDefault ? Typed + TEXT(" = ") + Function.DescribeDefault(Input) : Typed;
}

FString PythonDocs::TypedParameters(const FPythonFunction& Function)
{
	return JoinParameters(Function, &WriteTyped);
}

FString PythonDocs::TextSignature(const FPythonFunction& Function)
{
	const FString Parameters = JoinParameters(Function, &WritePlain);
	const FString Self = Function.IsStatic() ? TEXT("") : Parameters.IsEmpty() ? TEXT("$self") : TEXT("$self, ");
	return TEXT("(") + Self + Parameters + TEXT(")");
}

static FString DescribeArguments(const FPythonFunction& Function, const FFunctionComment& Comment)
{
	FString Text;
	for (const FPythonFunction::FParameter& Input : Function.GetInputs())
	{
		const FString* const Description = Comment.Parameters.Find(Input.Property->GetName());
		Text += FString::Printf(
			TEXT("\n    %s (%s): %s"), *Input.Name, *Input.Converter->AcceptedTypeName(), Description ? **Description : TEXT(""));
	}
	return Text.IsEmpty() ? Text : TEXT("\n\nArgs:") + Text;
}

static FString DescribeResult(const FPythonFunction& Function, const FFunctionComment& Comment)
{
	if (Function.ResultTypeName() == TEXT("None"))
	{
		return FString();
	}
	FString Text = FString::Printf(TEXT("\n\nReturns:\n    %s: %s"), *Function.ResultTypeName(), *Comment.Result);
	for (const FPythonFunction::FParameter& Output : Function.GetOutputs())
	{
		const FString* const Description = Comment.Parameters.Find(Output.Property->GetName());
		Text += FString::Printf(
			TEXT("\n\n    %s (%s): %s"), *Output.Name, *Output.Converter->TypeName(), Description ? **Description : TEXT(""));
	}
	return Text;
}

FString PythonDocs::Describe(const FPythonFunction& Function)
{
	const FFunctionComment Comment(Function.GetFunction()->GetToolTipText().ToString());
	FString Text = FString::Printf(
		TEXT("X.%s(%s) -> %s"), *Function.GetName(), *JoinParameters(Function, &WritePlain), *Function.ResultTypeName());
	if (!Comment.Summary.IsEmpty())
	{
		Text += TEXT("\n") + Comment.Summary;
	}
	if (!Function.GetDeprecationMessage().IsEmpty())
	{
		Text += TEXT("\ndeprecated: ") + Function.GetDeprecationMessage();
	}
	return Text + DescribeArguments(Function, Comment) + DescribeResult(Function, Comment);
}
