#!/usr/bin/python3
"""An application that prints with GTK's own print operation, as applications do.

print_client.py 3|4 [--pages N] [--settings NAME=VALUE]... [--paper WIDTHxLENGTH]

Draws N pages (3), page P with P bars and a dot in the corner where reading begins, writes one JSON
object when it is through, and stays as applications do: what became of the operation, its settings,
and the pages that it drew on, in millimetres.
"""
import argparse
import json
import sys

import gi

words = argparse.ArgumentParser()
words.add_argument("gtk", choices=["3", "4"])
words.add_argument("--pages", type=int, default=3)
words.add_argument("--settings", action="append", default=[])
words.add_argument("--paper")
asked = words.parse_args()

gi.require_version("Gtk", asked.gtk + ".0")
from gi.repository import GLib, Gtk  # noqa: E402 (the version comes first)

drawn = []


def draw(_operation, context, page):
    cairo = context.get_cairo_context()
    width, height = context.get_width(), context.get_height()
    drawn.append([width, height])
    bars = page + 1
    for bar in range(bars):
        cairo.rectangle((bar + 0.25) * width / bars, height / 4, width / bars / 2, height / 2)
    cairo.rectangle(0, 0, width / 10, height / 10)
    cairo.fill()


def operation():
    job = Gtk.PrintOperation()
    job.set_n_pages(asked.pages)
    job.set_job_name("Shelf labels")
    job.set_unit(Gtk.Unit.MM)
    settings = Gtk.PrintSettings()
    for setting in asked.settings:
        settings.set(*setting.split("=", 1))
    job.set_print_settings(settings)
    if asked.paper:
        width, length = map(float, asked.paper.split("x"))
        setup = Gtk.PageSetup()
        setup.set_paper_size(Gtk.PaperSize.new_custom("asked", "asked", width, length, Gtk.Unit.MM))
        job.set_default_page_setup(setup)
    job.connect("draw-page", draw)
    return job


def report(job, result, problem=None):
    settings = {}
    if job.get_print_settings():
        job.get_print_settings().foreach(lambda key, value: settings.update({key: value}))
    json.dump({"result": result.value_nick if result else "error", "problem": problem,
               "settings": settings, "drawn": drawn}, sys.stdout)
    print(flush=True)


def print_it(window):
    job = operation()
    try:
        report(job, job.run(Gtk.PrintOperationAction.PRINT_DIALOG, window))
    except GLib.Error as problem:
        report(job, None, problem.message)
    return False


if asked.gtk == "3":
    Gtk.init([])
else:
    Gtk.init()
loop = GLib.MainLoop()
window = Gtk.Window(title="An application", default_width=300, default_height=200)
window.connect("map-event" if asked.gtk == "3" else "map",
               lambda *_: GLib.timeout_add(100, print_it, window) and None)
window.show()
loop.run()
