"""The checker reports what it is there for: here are windows with one fault each."""

import sys
import unittest

from checker import Node, controls, faults, focused, unreached


def window(*children, role="frame"):
    return Node(role, "Lecture", children=list(children))


def button(name, **options):
    return Node("push button", name, focusable=True, **options)


class CheckerTest(unittest.TestCase):
    def test_a_window_in_order_has_no_faults(self):
        self.assertEqual(faults(window(button("Play"), button("Pause"), Node("label", ""))), [])

    def test_a_control_without_a_name_is_a_fault(self):
        self.assertEqual(faults(window(Node("filler", "", children=[button(" ")]))),
                         ["a push button at (0, 0) in 'Lecture' has no name"])

    def test_the_name_of_an_object_is_no_name(self):
        self.assertEqual(len(faults(window(button("btnPlayLecture"), Node("menu item", "MENU_QUIT")))), 2)

    def test_a_window_that_is_no_window_is_a_fault(self):
        self.assertEqual(faults(window(role="filler")), ["the window 'Lecture' is a filler"])

    def test_a_place_that_takes_the_keyboard_is_a_fault(self):
        self.assertEqual(faults(window(Node("filler", "Lectures", focusable=True))),
                         ["the keyboard comes to a filler 'Lectures' in 'Lecture'"])

    def test_two_of_one_name_side_by_side_are_a_fault(self):
        self.assertEqual(faults(window(button("Close"), button("Close"))),
                         ["two of push button 'Close' stand side by side in 'Lecture'"])

    def test_a_control_that_the_keyboard_missed_is_reported(self):
        shown = window(button("Play", place=(1, 1)), button("Stop", place=(2, 1)), button("Off", sensitive=False))

        self.assertEqual(unreached(shown, [("push button", "Play", (1, 1))]),
                         ["the keyboard does not come to the push button 'Stop' of 'Lecture'"])

    def test_rows_have_their_buttons_in_common(self):
        rows = [Node("list item", name, children=[button("Play", place=(0, y))]) for name, y in (("Optics", 1), ("Waves", 2))]

        self.assertEqual(controls(window(*rows)),
                         {("list item", "Optics", (0, 0)), ("list item", "Waves", (0, 0)), ("push button", "Play", "list item")})

    def test_the_innermost_thing_with_the_keyboard_has_it(self):
        row = Node("list item", "Optics", focused=True)

        self.assertEqual(focused(window(Node("list", "Lectures", focused=True, children=[row]))), ("list item", "Optics", (0, 0)))


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
