"""What the widgets of VelmoraGallery.json do.

The description's "InitPyCmd" makes one object of the class below when the tool opens and keeps it as `velmora_gallery`, and
the events of the widgets call its methods. The methods reach the widgets by their "Aka" names, through the tool's data
object.

To make a tool of your own, copy the folder, rename the files, the class and the variable, and start taking things out.
"""

import unreal

NORMAL = unreal.LinearColor(1.0, 1.0, 1.0, 1.0)
COLORS = {
    "Coral": unreal.LinearColor(1.0, 0.25, 0.15, 1.0),
    "Mint": unreal.LinearColor(0.15, 0.8, 0.4, 1.0),
    "White": NORMAL,
}

# Aka name of a check box, and what it stands for.
TOPPINGS = {
    "ToppingOlives": "olives",
    "ToppingPeppers": "peppers",
    "ToppingMushrooms": "mushrooms",
}


class VelmoraGallery:
    """The state of the gallery, and one method per event."""

    def __init__(self, json_path):
        # The data object is the way to the widgets. Here they exist already, so that they can be filled.
        self.data = unreal.PythonBPLib.get_velmora_data(json_path)
        self.count = 0
        self.name = ""
        self.lines = []
        self.show_count()
        self.show_toppings()
        self.show_status("Ready.")

    # Text ---------------------------------------------------------------------------------------------------------------

    def on_color(self, name):
        self.data.set_color_and_opacity("ColorSample", COLORS[name])
        self.data.set_text("ColorSample", "This text is {}.".format(name.lower()))
        self.show_status("Colour: " + name)

    # Buttons ------------------------------------------------------------------------------------------------------------

    def on_count(self, step):
        self.count += step
        self.show_count()
        self.show_status("Counter: {}".format(self.count))

    def on_count_reset(self):
        self.on_count(-self.count)

    def show_count(self):
        self.data.set_text("Count", str(self.count))
        color = NORMAL if self.count == 0 else COLORS["Coral"]
        self.data.set_button_color_and_opacity("CountReset", color)
        self.data.set_tool_tip_text("CountReset", "Takes {} back to 0".format(self.count))

    # Fields -------------------------------------------------------------------------------------------------------------

    def on_name_changed(self):
        # A "%" in the command would be replaced by the text as a Python literal, in which a backslash or three quotes have
        # a meaning of their own. Asking the widget gives the text as it was typed.
        self.data.set_text("NameEcho", "Hello, {}!".format(self.data.get_text("Name")))

    def on_name_committed(self):
        # Enter commits, and so does every loss of the focus, whether or not something changed.
        name = self.data.get_text("Name")
        if name != self.name:
            self.name = name
            self.add_line("Name: " + name)

    def on_name_locked(self, locked):
        self.data.set_text_read_only("Name", locked)
        self.show_status("The field is locked." if locked else "The field is open.")

    def on_name_clear(self):
        # An emptied field sends no event, so whoever empties it also says what follows from it.
        self.name = ""
        self.data.set_text("Name", "")
        self.data.set_text("NameEcho", "")

    # Check boxes --------------------------------------------------------------------------------------------------------

    def on_toppings_changed(self):
        self.show_toppings()

    def on_toppings_all(self, checked):
        # set_is_checked runs no event of the check box.
        for aka in TOPPINGS:
            self.data.set_is_checked(aka, checked)
        self.show_toppings()

    def show_toppings(self):
        chosen = [text for aka, text in TOPPINGS.items() if self.data.get_is_checked(aka)]
        self.data.set_text("Toppings", "Pizza with " + (", ".join(chosen) if chosen else "cheese only"))

    # Boxes and borders --------------------------------------------------------------------------------------------------

    def on_panel_shown(self, shown):
        self.data.set_collapsed("Panel", not shown)
        self.show_status("The panel is {}.".format("shown" if shown else "collapsed"))

    def on_panel_hidden(self, hidden):
        # What is hidden keeps its room, what is collapsed takes none.
        self.data.set_visibility("PanelText", "Hidden" if hidden else "Visible")

    # Log and scrolling --------------------------------------------------------------------------------------------------

    def on_add_lines(self, number):
        for _ in range(number):
            self.add_line("Line {}".format(len(self.lines) + 1))

    def on_log_scroll(self, line):
        self.data.scroll_to("Log", line)

    def on_log_clear(self):
        self.lines = []
        self.data.set_text("Log", "")

    def add_line(self, text):
        self.lines.append(text)
        self.data.set_text("Log", "\n".join(self.lines))
        self.data.scroll_to("Log", -1)

    def on_page_scroll(self, to_end):
        offsets = self.data.get_scroll_box_offsets("Page")
        self.data.set_scroll_box_offset("Page", offsets["ScrollOffsetOfEnd"] if to_end else 0.0)

    # The rest -----------------------------------------------------------------------------------------------------------

    def on_close(self):
        unreal.log("The gallery was closed; its counter stood at {}.".format(self.count))

    def show_status(self, text):
        self.data.set_text("Status", text)
