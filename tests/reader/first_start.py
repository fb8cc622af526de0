"""The first start of a new person, from the agreement to the home screen."""

PERSON = {"User Name": "Ann", "Age": "40", "Height, Feet": "5", "Height, Inches": "6",
          "Current Weight": "150", "Desired Weight": "140"}


def first_start(reader, look=lambda place: None):
    reader.find("dialog", "Halvane License Agreement")
    look("agreement")
    reader.press("push button", "Accept$")
    reader.find("push button", "Begin$")
    look("welcome")
    reader.press("push button", "Begin$")
    reader.find("dialog", "User Profile")
    look("profile")
    for field, text in PERSON.items():
        reader.type(field, text)
    for choice in ("Female", "Medium"):
        reader.press("radio button", choice + "$")
    reader.press("push button", "Save Profile$")
    reader.find("label", "Your profile has been created.")
    look("message")
    reader.press("push button", "OK$")
    reader.find("panel", "Main")
