-- The other pages do not come along: what links to them is only text.
function Link(link)
  if link.target:match("%.md$") then
    return link.content
  end
end
