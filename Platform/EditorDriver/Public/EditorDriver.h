#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "EditorDriver.generated.h"

/**
 * Drives tools as a user does: with events of the mouse and the keyboard at places of the desktop. For tests and for
 * continuous integration; it exists in this editor only.
 *
 * A widget is named by the label or the identifier of its tab (or the title of its window), its type, the text that it shows,
 * and an index among those that are alike. In place of the type stands "#name" for the widget with that Aka name. An empty
 * type names any widget. What is covered, cut off, disabled or without size cannot be hit: the call raises and says what is
 * there instead.
 */
UCLASS(meta = (ScriptName = "EditorDriver"))
class EDITORDRIVER_API UEditorDriver : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Moves the mouse to the middle of a widget, presses the left button and releases it.
	 *
	 * @param Tab  Label or identifier of a tab, or title of a window. A label may be given by a beginning that no other has.
	 * @param Type  Type of the widget, such as "SButton", or "#name".
	 * @param Text  The whole text that the widget shows, which may be that of a widget within it; empty for any.
	 * @param Index  Which one of those that are alike, from 0 in the order of the tree.
	 * @return What took the press, such as: SButton "Find".
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString Click(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0);

	/**
	 * Clicks a widget twice, the second time as a double click.
	 *
	 * @return What took the press.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString DoubleClick(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0);

	/**
	 * Clicks a widget with the right button.
	 *
	 * @return What took the press, or an empty text when nothing did.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString RightClick(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0);

	/**
	 * Moves the mouse over a widget.
	 *
	 * @param U  Place in the widget from left (0) to right (1).
	 * @param V  Place in the widget from top (0) to bottom (1).
	 * @return The deepest widget under the mouse.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString Hover(
		const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0, float U = 0.5f, float V = 0.5f);

	/**
	 * Presses the left button on a widget, moves in ten steps, and releases it.
	 *
	 * @param DeltaX  How far to the right, in pixels.
	 * @param DeltaY  How far down, in pixels.
	 * @return What took the press.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString Drag(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0, float DeltaX = 0.0f,
		float DeltaY = 0.0f);

	/**
	 * Turns the wheel over a widget.
	 *
	 * @param Delta  Notches; positive away from the user, which shows what is further up.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static void Scroll(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0, float Delta = -1.0f);

	/**
	 * Types characters into what has the keyboard focus, a line break as Enter. Raises at a character that is not taken: no text
	 * field has the focus, or one that is read-only.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static void TypeText(const FString& Text);

	/**
	 * Presses a key and releases it, with modifiers held.
	 *
	 * @param Chord  Names of keys joined by "+", the last one being pressed: "Enter", "Ctrl+A", "Ctrl+Shift+Left".
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static void PressKey(const FString& Chord);

	/**
	 * Holds a key for a time; it repeats as a keyboard's does, after half a second thirty times a second.
	 *
	 * @param Seconds  Time of the editor, see Wait.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static void HoldKey(const FString& Chord, float Seconds);

	/**
	 * The text that a widget shows, itself or within it: the whole text of a text field, the label of a button.
	 *
	 * @return The text; empty when it shows none.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString GetText(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0);

	/** Whether there is such a widget and the last frame showed at least a part of it. */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static bool IsVisible(const FString& Tab, const FString& Type, const FString& Text = "", int32 Index = 0);

	/** How many widgets there are of that description, shown or not. */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static int32 Count(const FString& Tab, const FString& Type, const FString& Text = "");

	/**
	 * Lets the editor run. Off-screen its clock goes a sixtieth of a second a frame, however fast the frames are, so that a
	 * minute passes in milliseconds. Within an event of a widget it raises.
	 *
	 * @param Seconds  Time of the editor, up to 3600; 0 lets one frame pass. Anything else raises.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static void Wait(float Seconds = 0.0f);

	/**
	 * Writes what the window of a tab shows to a PNG file.
	 *
	 * @param Tab  Label or identifier of a tab, or title of a window.
	 * @param Path  The file: absolute, or relative to the project's folder and inside it. ".png" is added if the name does not end so,
	 *              missing folders are made.
	 * @return The full path of the file.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString Screenshot(const FString& Tab, const FString& Path);

	/** The widgets of a tab as text, one in a line, indented by depth: type, #name, text, place and size in pixels. */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static FString DumpTree(const FString& Tab);

	/** How many elements the last painted frame consisted of; only what was damaged is painted. */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static int32 CountPaintedElements();

	/** How many frames had something to do since the editor's start. */
	UFUNCTION(BlueprintCallable, Category = "Editor Driver")
	static int64 CountFrames();
};
