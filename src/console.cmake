# sources of the console
