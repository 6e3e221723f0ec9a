set pagination off
set confirm off
set width 0
set debuginfod enabled off
break Look
run
up
print empty
print inlined
print heap
print strange
print narrow
print object
print null
print texts
print objects
print numbers
print cursor
print attribute
print lost
print nowhere
print condition
print broken
kill
