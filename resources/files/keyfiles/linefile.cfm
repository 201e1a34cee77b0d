line|configure a terminal line
