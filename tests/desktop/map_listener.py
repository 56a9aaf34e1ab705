#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What somebody is told of the map, and can do on it, who has the screen read aloud.

    map_listener.py WINDOW X Y

works the editor whose main window has that X id and that corner on the screen through AT-SPI, and by
keys and mouse where a person would. Each step waits for what it causes, none for a fixed time. The
exit code is 1, with a line that tells where, when something does not come about.
"""
import subprocess
import sys
import time

import gi

gi.require_version('Atspi', '2.0')
import pyatspi
from gi.repository import Atspi, GLib

LIMIT = 30  # seconds; what takes longer counts as not happening


def turn():
    """Lets what has been told arrive."""
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(what, condition):
    """Asks until there is an answer other than none or false, and returns it."""
    end = time.monotonic() + LIMIT
    trouble = None
    while time.monotonic() < end:
        turn()
        try:
            answer = condition()
            if answer:
                return answer
        except (GLib.Error, LookupError, NotImplementedError, AttributeError) as error:
            trouble = error  # of something that has just come or gone
        time.sleep(0.05)
    sys.exit(f'FAILED: {what}: not within {LIMIT} s ({trouble})\n{tree(editor())}')


def fresh(accessible):
    """Nothing that was remembered of it counts."""
    if accessible is not None:
        accessible.clear_cache()
    return accessible


def children(accessible):
    fresh(accessible)
    return [fresh(accessible.getChildAtIndex(i)) for i in range(accessible.childCount)]


def tree(accessible, depth=0, deepest=3):
    if accessible is None:
        return ''
    line = '  ' * depth + f'{accessible.getRoleName()} "{accessible.name}"\n'
    below = children(accessible) if depth < deepest else []
    return line + ''.join(tree(child, depth + 1, deepest) for child in below)


def editor():
    desktop = pyatspi.Registry.getDesktop(0)
    return next((each for each in children(desktop) if each and each.name == 'Nubivane'), None)


def find(accessible, role, name):
    """The first one of a role and a name below another."""
    for child in children(accessible):
        if child is None:
            continue
        if child.getRole() == role and child.name == name:
            return child
        found = find(child, role, name)
        if found is not None:
            return found
    return None


def has(accessible, state):
    return fresh(accessible).getState().contains(state)


def place(accessible):
    extents = accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return extents.x, extents.y, extents.width, extents.height


def actions(accessible):
    action = accessible.queryAction()
    return [action.getDescription(i) for i in range(action.nActions)]


def act(accessible, name):
    accessible.queryAction().doAction(actions(accessible).index(name))


def xdotool(*words):
    subprocess.run(['xdotool', *map(str, words)], check=True)


def keys(window, *names):
    xdotool('windowfocus', window)
    wait_for('the keyboard', lambda: subprocess.run(
        ['xdotool', 'getwindowfocus', '-f'], capture_output=True, text=True).stdout.strip() == window)
    xdotool('key', '--delay', 20, *names)


def ok(what):
    print(f'ok: {what}', flush=True)


class Map:
    """The map of the editor."""

    def __init__(self):
        self.changes = []
        self.accessible = wait_for('a canvas "Map"', lambda: find(
            wait_for('the editor', editor), pyatspi.ROLE_CANVAS, 'Map'))
        self.left, self.top = place(self.accessible)[:2]

    def listen(self):
        pyatspi.Registry.deregisterEventListener(self.hear, 'object:children-changed')
        pyatspi.Registry.registerEventListener(self.hear, 'object:children-changed')

    def hear(self, event):
        self.changes.append(str(event.type).split(':')[2])

    def children(self):
        return [child for child in children(self.accessible) if child is not None]

    def child(self, name):
        return next((each for each in self.children() if each.name == name), None)

    def expect_names(self, what, *names):
        wait_for(what, lambda: [each.name for each in self.children()
                                if each.getRole() != pyatspi.ROLE_TEXT] == list(names))

    def point(self, x, y):
        """A pixel of the map on the screen; the map has a border of one pixel."""
        return self.left + 1 + x, self.top + 1 + y

    def click(self, x, y):
        xdotool('mousemove', *self.point(x, y), 'click', 1)


def numbers(text):
    return [int(part) for part in text.replace(' x ', ', ').split(', ')]


def read_a_symbol(shown, window, palette):
    xdotool('mousemove', *palette, 'click', 1)
    keys(window, 'Return')
    shown.expect_names('a symbol that was placed is a child of the map', 'sun')
    sun = shown.child('sun')
    wait_for('its role', lambda: sun.getRole() == pyatspi.ROLE_IMAGE)
    wait_for('that it is selected', lambda: has(shown.child('sun'), pyatspi.STATE_SELECTED))
    x, y, width, height = numbers(sun.description.split(' at ')[1])
    wait_for('its place on the screen',
             lambda: place(sun) == (*shown.point(x, y), width, height))
    wait_for('its actions', lambda: actions(sun)[:3] == [
        'Select', 'Take into the selection', 'Edit'])
    ok('a symbol has a name, a role, a place, actions, and is selected')


def use_a_label(shown, window, label):
    xdotool('mousemove', *label, 'click', '--repeat', 2, '--delay', 50, 1)
    shown.expect_names('a label that was placed is a child of the map', 'sun', 'Label')
    wait_for('the role of the label',
             lambda: shown.child('Label').getRole() in (pyatspi.ROLE_LABEL, pyatspi.ROLE_STATIC))
    wait_for('that the label is selected', lambda: has(shown.child('Label'), pyatspi.STATE_SELECTED))
    act(shown.child('sun'), 'Select')
    wait_for('that the symbol is selected', lambda: has(shown.child('sun'), pyatspi.STATE_SELECTED))
    wait_for('that the label is not', lambda: not has(shown.child('Label'), pyatspi.STATE_SELECTED))
    act(shown.child('Label'), 'Take into the selection')
    wait_for('that both are selected', lambda: all(
        has(shown.child(name), pyatspi.STATE_SELECTED) for name in ('sun', 'Label')))
    act(shown.child('Label'), 'Edit')
    wait_for('the field for the label on the map', lambda: any(
        each.getRole() == pyatspi.ROLE_TEXT and has(each, pyatspi.STATE_SHOWING)
        for each in shown.children()))
    keys(window, 'ctrl+a', 'F', 'o', 'g', 'Return')
    shown.expect_names('the new name of the label', 'sun', 'Fog')
    ok('a label is chosen, taken into the selection and edited')


def draw_a_front(shown, window):
    keys(window, 'Escape', 'f', '1')
    for x, y in ((60, 60), (160, 90), (260, 60)):
        shown.click(x, y)
    shown.expect_names('the front under edit is a child of the map', 'sun', 'Fog', 'Cold front')

    def points():
        return children(shown.child('Cold front'))
    wait_for('its three points', lambda: [each.name for each in points()] == [
        f'Point {i} of 3' for i in (1, 2, 3)])
    wait_for('where they are', lambda: [numbers(each.description.split(' at ')[1])
                                        for each in points()] == [[60, 60], [160, 90], [260, 60]])

    def covers(accessible, x, y):
        left, top, width, height = place(accessible)
        return left <= x < left + width and top <= y < top + height
    wait_for('where they are on the screen', lambda: all(
        covers(each, *shown.point(*at))
        for each, at in zip(points(), ((60, 60), (160, 90), (260, 60)))))
    wait_for('that the last one is in hand', lambda: [
        has(each, pyatspi.STATE_SELECTED) for each in points()] == [False, False, True])
    act(points()[0], 'Take in hand')
    wait_for('that the first one is in hand', lambda: [
        has(each, pyatspi.STATE_SELECTED) for each in points()] == [True, False, False])
    act(points()[1], 'Remove')
    wait_for('that two are left', lambda: [each.name for each in points()] == [
        'Point 1 of 2', 'Point 2 of 2'])
    act(shown.child('Cold front'), 'Draw')
    shown.expect_names('that it is part of the map now', 'sun', 'Fog')
    ok('a front and its points, taken in hand, removed and drawn')


def drop_a_line(shown, window):
    keys(window, 'l')
    shown.click(60, 200)
    shown.click(160, 230)
    wait_for('the line under edit', lambda: shown.child('Line') and [
        each.name for each in children(shown.child('Line'))] == ['Point 1 of 2', 'Point 2 of 2'])
    act(shown.child('Line'), 'Drop')
    shown.expect_names('that the line is gone', 'sun', 'Fog')
    ok('a line and its ends')


def hear_of_a_front(shown, window):
    """The editor may miss that somebody has begun to listen: so that is done anew until it is told."""
    def begin_and_drop():
        shown.listen()
        shown.changes.clear()
        shown.click(60, 120)
        wait_for('a front that begins', lambda: shown.child('Cold front'))
        act(shown.child('Cold front'), 'Drop')
        shown.expect_names('that the front is gone', 'sun', 'Fog')
        turn()
        return 'add' in shown.changes
    keys(window, 'f', '1')
    wait_for('to be told of a new child', begin_and_drop)
    ok('what comes onto the map is told without being asked')


def main():
    window, left, top = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    shown = Map()
    shown.expect_names('an empty map')
    read_a_symbol(shown, window, (left + 50, top + 160))
    use_a_label(shown, window, (left + 30, top + 82))
    draw_a_front(shown, window)
    drop_a_line(shown, window)
    hear_of_a_front(shown, window)
    keys(window, 'Escape')
    act(shown.child('sun'), 'Select')
    wait_for('that the symbol alone is selected', lambda: has(
        shown.child('sun'), pyatspi.STATE_SELECTED))
    keys(window, 'Delete')
    shown.expect_names('that the symbol is gone', 'Fog')
    ok('a symbol that goes')


if __name__ == '__main__':
    main()
