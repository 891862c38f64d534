#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmoraData.generated.h"

class SWidget;

/**
 * A running tool as Python sees it: reads and changes the tool's widgets by their Aka names.
 *
 * Get it with unreal.PythonBPLib.get_velmora_data(json_path). It outlives the tool's tab: a tool that is opened again has the
 * same data object, and until then calls act on widgets that no window shows. No function raises; a failure is the value that
 * is told for it, mostly with a line in the log.
 *
 * The object is named after the description's file, without its folder. Tools whose files have one name share one object, which
 * the second of them empties: name files apart.
 */
UCLASS(BlueprintType, Blueprintable)
class UVelmoraData : public UObject
{
	GENERATED_BODY()

public:
	//
	// The registry of widgets (VelmoraData.cpp)
	//

	/** Records a widget under its Aka name. A later widget of that name replaces the earlier one. True if the name was new. */
	bool AddNamedWidget(FName AkaName, FString WidgetPath, TSharedPtr<SWidget> Widget);

	/** The widget of that name; null, with a warning that lists the known names, if there is none. */
	TSharedPtr<SWidget> GetNamedWidget(FName AkaName) const;

	/** By Aka name: the widgets, and the paths that the generator gave them. */
	TMap<FName, TSharedPtr<SWidget>> NamedWidget;
	TMap<FName, FString> NamedWidgetPaths;

	/** Whether Python has reported that it is ready, with set_python_flag. */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static bool GetPythonFlag();

	/** Tells the plugin that Python is ready; get_python_flag returns what was said last. */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static void SetPythonFlag(bool bIsReady);

	//
	// State of widgets (VelmoraDataWidgets.cpp)
	//

	/**
	 * Reads the text of a text block, an edit box, or a button with a text.
	 *
	 * @param AkaName  Name of the widget.
	 * @param OutText  What shows now, whatever the user has typed included.
	 * @return False (None in Python) if there is no widget of that name, with a warning, or if it has no text.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	bool GetText(FName AkaName, FString& OutText);

	/**
	 * Sets the text of a text block, an edit box or a button. A button's content is replaced by the text unless it is a text.
	 *
	 * @param AkaName  Name of the widget. An unknown name draws a warning; a widget without a text is left alone.
	 * @param Text     The new text.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetText(FName AkaName, FString Text);

	/**
	 * Locks or unlocks an edit box.
	 *
	 * @param AkaName    Name of the widget. An unknown name draws a warning, another widget a log line.
	 * @param bReadOnly  True to let the user read and copy only.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetTextReadOnly(FName AkaName, bool bReadOnly);

	/**
	 * Scrolls a multi-line edit box so that a place of its text shows.
	 *
	 * @param AkaName    Name of the widget.
	 * @param LineIndex  Line of the text, from 0, before any wrapping. Any negative number means the end of the text.
	 * @param Offset     Character within the line, from 0.
	 * @return False, with a log line, if there is no multi-line edit box of that name.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	bool ScrollTo(FName AkaName, int32 LineIndex = 0, const int32 Offset = 0);

	/**
	 * Tells whether a check box is checked.
	 *
	 * @param AkaName  Name of the widget.
	 * @return False also for an undetermined one and, with a warning, if there is no check box of that name.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	bool GetIsChecked(FName AkaName);

	/**
	 * Checks or unchecks a check box. Its command does not run.
	 *
	 * @param AkaName   Name of the widget. A warning tells if it is no check box.
	 * @param bChecked  The new state.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetIsChecked(FName AkaName, bool bChecked);

	/**
	 * Shows or hides a widget.
	 *
	 * @param AkaName        Name of the widget.
	 * @param VisibilityStr  "Visible", "Collapsed" (takes no room), "Hidden" (keeps its room), "HitTestInvisible" (shows, but
	 *                       neither it nor what it holds takes the mouse) or "SelfHitTestInvisible" (only what it holds does),
	 *                       in any case.
	 * @return False if there is no widget of that name or, with an error in the log, for any other text.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	bool SetVisibility(FName AkaName, FString VisibilityStr);

	/**
	 * Takes a widget out of the layout, or shows it again.
	 *
	 * @param AkaName     Name of the widget. An unknown one is passed over.
	 * @param bCollapsed  True to collapse it, false to make it visible.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetCollapsed(FName AkaName, bool bCollapsed);

	/**
	 * Colours a text, or tints a scroll box, check box, border, button or edit box with all it holds.
	 *
	 * @param AkaName  Name of the widget. An unknown name draws a warning, another widget a log line.
	 * @param Color    Linear colour, channels 0 to 1; alpha is the opacity.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetColorAndOpacity(FName AkaName, FLinearColor Color);

	/**
	 * Tints the background of a button.
	 *
	 * @param AkaName  Name of the widget. A warning tells if it is no button.
	 * @param Color    Linear colour, channels 0 to 1; alpha is the opacity.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetButtonColorAndOpacity(FName AkaName, FLinearColor Color);

	/**
	 * Sets the text that shows while the mouse rests on a widget.
	 *
	 * @param AkaName      Name of the widget. An unknown one draws a log line.
	 * @param ToolTipText  The new text.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	void SetToolTipText(FName AkaName, const FString& ToolTipText);

	/**
	 * Tells where a scroll box stands.
	 *
	 * @param AkaName  Name of the widget.
	 * @return "Offset" and "ScrollOffsetOfEnd" in slate units from the start of the content; "ViewFraction", how much of the
	 *         content is in view, and "ViewOffsetFraction", where the view begins, both 0 to 1. Empty, with a log line, if there
	 *         is no scroll box of that name. The numbers are those of the last layout.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	TMap<FString, float> GetScrollBoxOffsets(FName AkaName);

	/**
	 * Scrolls a scroll box.
	 *
	 * @param AkaName  Name of the widget.
	 * @param Offset   Slate units from the start of the content; beyond the end it stops at the end.
	 * @return False, with a log line, if there is no scroll box of that name.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	bool SetScrollBoxOffset(FName AkaName, float Offset);

	//
	// Windows of tools (VelmoraDataWindows.cpp)
	//

	/**
	 * Opens a tool, or brings it to the front if it is open. "InitPyCmd" has run when this returns.
	 *
	 * @param ToolsPath  The relative JSON path of Velmora tool in Python folder, e.g. "VelmoraGallery/VelmoraGallery.json", or an
	 *                   absolute path.
	 * @return succeed or not: true if the tool is in a tab now. A tool with an "InitTabSize" opens in a window of its own and
	 *         gives false, as does, with a line in the log, a file that is missing or cannot be parsed.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static bool LaunchVelmoraTool(const FString& ToolsPath = TEXT(""));

	/**
	 * Closes a tool's tab. Its "OnClosePyCmd" has run when this returns.
	 *
	 * @param ToolsPath  The relative JSON path of Velmora tool in Python folder, or an absolute path.
	 * @return False, with warnings that list the known tools, if the tool is not open.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static bool RequestClose(const FString& ToolsPath = TEXT(""));

	/**
	 * Saves a picture of the window in which a tool is open, as PNG. The window does not change by it.
	 *
	 * @param ToolsPath           The relative JSON path of Velmora tool in Python folder, or an absolute path.
	 * @param OverrideWindowSize  Size to paint the window at, in slate units, also beyond the screen's. (0, 0) for its present
	 *                            one.
	 * @param ImageFilePath       File to write, with its missing folders; a relative one counts from the project's folder. Empty for a name with date and time in the folder
	 *                            "KestrixVelmoraUI" of the project's screenshots.
	 * @return Absolute path of the file; empty if the tool is not open or the file could not be written. In a command of "OnTick" the
	 *         picture is taken after the frame, and the path is that of the file to be written.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static FString SnapshotVelmoraWindow(
		const FString& ToolsPath, FVector2D OverrideWindowSize = FVector2D(0.0f, 0.0f), FString ImageFilePath = TEXT(""));

private:
	/** The widget of that name, without a word if there is none. */
	TSharedPtr<SWidget> FindWidget(FName AkaName) const;
};
